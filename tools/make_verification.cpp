// SPDX-License-Identifier: GPL-3.0-or-later
// Writes docs/verification.md from the cases that the tests run: make_verification FILE
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

#include "hydraulics/verification_cases.h"

namespace {

constexpr std::string_view kIntroduction = R"(# Verification

What Idrova computes, held against values that were found in another way: read in the literature, or
worked out by hand and by bisection, without any of the program's code. Each run of the tests computes
all of these cases anew, and `tools/make_verification` writes this page from the very same table.
[The method](method.md) has the equations.

- *Source* is a published value, or an expression for the script below, which gives the expected one
  (`tools/check_verification.py` evaluates all of them).
- *Difference* is that of the computed from the expected value, of the expected one. Published values
  have three to five digits, and stand for a real π and for Colebrook's constants to more digits.
- Where nothing else is said, pipes are level, walls have a roughness of 0.1 mm, water has 1000 kg/m³ and
  0.001 Pa·s, oil the same density and 0.2 Pa·s, and air 1.2929 kg/m³ at 0 °C and 101325 Pa, 1.8·10⁻⁵ Pa·s,
  Z = 0.98, 20 °C. w is a flow in kg/s. A pump or a valve stands between two pipes, the second of which
  is half as long as the first and 0.8 times as wide unless the expression says otherwise.
- The loop has four junctions: 1 to 2 with 100 m of 60 mm, 2 to 3 with 150 m of 50 mm, 4 to 3 with 80 m of
  70 mm, 1 to 4 with 120 m of 60 mm; 6 kg/s come in at 1 through 10 m of 100 mm from 5·10⁵ Pa, 2 go out at 2
  and 4 at 3, each through 10 m of 50 mm.

```python
from math import exp, log10, sqrt

PI = 3.1415                                   # the program's
G = .98 * 101325 / (1.2929 * 273.15) * 293.15  # Z R T / M of the air, m2/s2
air = dict(rho=1.2929, mu=1.8e-5)

def root(f, low, high):                       # where f changes its sign
    up = f(high) > 0
    for _ in range(200):
        middle = (low + high) / 2
        if (f(middle) > 0) == up:
            high = middle
        else:
            low = middle
    return low

def flow(f):
    return root(f, 1e-9, 1e3)

def fanning(re, rough):
    if re < 50:
        return fanning(50, rough) * 50 / re
    if re < 5000:
        return (3.8 * log10(10 / re + .2 * rough)) ** -2
    return root(lambda x: x - 3.48 + 4 * log10(2 * rough + 9.35 * x / re), 1, 100) ** -2

def area(d):
    return PI * d * d / 4

def drop(w, l, d, k=0, rho=1000, mu=1e-3):    # kg/s, m, m: Pa, with the sign of the flow
    v = w / (rho * area(d))
    f = fanning(rho * abs(v) * d / mu, 1e-4 / d)
    return (4 * f * l / d + k) * rho * v * abs(v) / 2

def loop(w, mu=1e-3):                         # with w in pipe 1
    return (drop(w, 100, .06, mu=mu) + drop(w - 2, 150, .05, mu=mu)
            - drop(6 - w, 80, .07, mu=mu) - drop(6 - w, 120, .06, mu=mu))
```
)";

/// Six digits.
std::string Number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", value);
    return text;
}

std::string Percent(double share) {
    char text[32];
    std::snprintf(text, sizeof text, "%.4f %%", std::abs(share) * 100);
    return text;
}

std::string Document() {
    std::string text(kIntroduction);
    std::string_view group;
    for (const idrova::VerificationCase& c : idrova::VerificationCases()) {
        if (group != c.group) {
            group = c.group;
            text += "\n## " + std::string(group) +
                    "\n\n| Case | Source | Expected | Computed | Difference |\n"
                    "| --- | --- | --- | --- | --- |\n";
        }
        const std::string unit = *c.unit == '\0' ? "" : std::string(" ") + c.unit;
        for (const std::string& column :
             {std::string(c.plant), std::string(c.source), Number(c.expected) + unit,
              Number(c.computed) + unit, Percent((c.computed - c.expected) / c.expected)}) {
            text.append("| ").append(column).append(" ");
        }
        text += "|\n";
    }
    return text;
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc != 2) {
        std::cerr << "usage: make_verification FILE\n";
        return EXIT_FAILURE;
    }
    return std::ofstream(argv[1], std::ios::binary) << Document() ? EXIT_SUCCESS : EXIT_FAILURE;
}

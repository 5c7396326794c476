// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/messages.h"

#include "base/number_text.h"
#include "hydraulics/linear_system.h"

namespace idrova {
namespace {

std::string Terms(int equations, int knownTerms) {
    return StrText(equations) + " Equations +" + StrText(knownTerms) + " Known terms" + kLineBreak;
}

}  // namespace

MessageBox ZeroLength(int pipe) {
    return {"Pipe " + StrText(pipe) + " with zero lenght", "Check"};
}

MessageBox ZeroDiameter(int pipe) {
    return {"Pipe " + StrText(pipe) + " with zero diameter", "Check"};
}

MessageBox TooManyUnknowns(int unknowns) {
    return {"Too many unknowns:" + StrText(unknowns) + " (max " + GeneralText(kMaxUnknowns) + ")",
            "Unsolving system"};
}

MessageBox UnsolvingSystem(int unknowns, int equations, int knownTerms) {
    return {StrText(unknowns) + " Unknowns > " + Terms(equations, knownTerms) + "Set " +
                StrText(unknowns - equations - knownTerms) + " flow rates and/or pressures",
            "Unsolving system"};
}

MessageBox IndefiniteSystem(int unknowns, int equations, int knownTerms) {
    return {StrText(unknowns) + " Unknowns < " + Terms(equations, knownTerms) + "Delete " +
                StrText(equations + knownTerms - unknowns) + " known terms",
            "Indefinite system"};
}

MessageBox IncoherentData(const std::string& pipes) {
    return {"Pipes " + pipes + " with not coherent data", "Data oherence check"};
}

MessageBox OutOfRangePumps(const std::string& cells) {
    return {"The pumps " + cells + " work with a flow rate out range", "Working point check",
            BoxIcon::Information};
}

MessageBox NegativePressures(float basePressure) {
    return {std::string("Some pressures are negative, probably due to a close circuit") +
                kLineBreak +
                "Do you want to automatically define a new value for the base pressure ?" +
                kLineBreak + "Actual value = " + StrText(basePressure) + " bar",
            "Pressure check", BoxIcon::Information, BoxButtons::YesNo};
}

}  // namespace idrova

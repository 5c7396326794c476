// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/messages.h"

#include <algorithm>
#include <string>

#include "base/number_text.h"
#include "hydraulics/linear_system.h"

namespace idrova {
namespace {

std::string Terms(const Refusal& count) {
    return StrText(count.equations) + " Equations +" + StrText(count.knownTerms) + " Known terms" +
           kLineBreak;
}

MessageBox PipeWithZero(const std::vector<int>& pipes, const char* what) {
    return {"Pipe " + StrText(pipes.front()) + " with zero " + what, "Check"};
}

MessageBox TooManyUnknowns(const Refusal& count) {
    const int largest = std::max(count.unknowns, count.equations + count.knownTerms);
    return {"Too many unknowns:" + StrText(largest) + " (max " + GeneralText(kMaxUnknowns) + ")",
            "Unsolving system"};
}

MessageBox UnsolvingSystem(const Refusal& count) {
    return {StrText(count.unknowns) + " Unknowns > " + Terms(count) + "Set " +
                StrText(count.unknowns - count.equations - count.knownTerms) +
                " flow rates and/or pressures",
            "Unsolving system"};
}

MessageBox IndefiniteSystem(const Refusal& count) {
    return {StrText(count.unknowns) + " Unknowns < " + Terms(count) + "Delete " +
                StrText(count.equations + count.knownTerms - count.unknowns) + " known terms",
            "Indefinite system"};
}

MessageBox IncoherentData(const std::vector<int>& pipes) {
    std::string list;
    for (const int pipe : pipes) list += StrText(pipe);
    return {"Pipes " + list + " with not coherent data", "Data oherence check"};
}

}  // namespace

MessageBox RefusalBox(const Refusal& refusal) {
    switch (refusal.kind) {
        case RefusalKind::NoFluid:
            return kSelectAFluid;
        case RefusalKind::NegativeDensity:
            return kNegativeDensity;
        case RefusalKind::NoViscosity:
            return kNoViscosity;
        case RefusalKind::NegativeViscosity:
            return kNegativeViscosity;
        case RefusalKind::NotCompressible:
            return kNotCompressible;
        case RefusalKind::TooCold:
            return kTooCold;
        case RefusalKind::ZeroLength:
            return PipeWithZero(refusal.pipes, "lenght");
        case RefusalKind::ZeroDiameter:
            return PipeWithZero(refusal.pipes, "diameter");
        case RefusalKind::TooManyUnknowns:
            return TooManyUnknowns(refusal);
        case RefusalKind::TooFewTerms:
            return UnsolvingSystem(refusal);
        case RefusalKind::TooManyTerms:
            return IndefiniteSystem(refusal);
        case RefusalKind::Incoherent:
            return IncoherentData(refusal.pipes);
    }
    return kDoesNotSettle;
}

MessageBox OutOfRangePumps(const std::vector<int>& cells) {
    std::string list;
    for (const int cell : cells) list += StrText(cell) + " ,";
    return {"The pumps " + list + " work with a flow rate out range", "Working point check",
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

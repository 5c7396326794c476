// SPDX-License-Identifier: GPL-3.0-or-later
#include "hydraulics/single_pipe.h"

#include "base/number_text.h"

namespace idrova {
namespace {

constexpr double kLengthStep = 1;      ///< m
constexpr double kPressureStep = 0.1;  ///< bar
constexpr double kFlowStep = 100;      ///< kg/h

/// A quantity in the unit of its box.
double BoxValue(const SinglePipe& pipe, PipeQuantity quantity) {
    switch (quantity) {
        case PipeQuantity::PressureAt1:
            return pipe.pressure1;
        case PipeQuantity::PressureAt2:
            return pipe.pressure2;
        case PipeQuantity::Length:
            return pipe.length;
        case PipeQuantity::FlowRate:
            return pipe.flowRate * kSecondsPerHour;
        case PipeQuantity::Diameter:
            return pipe.diameter * kMillimetresPerMetre;
    }
    return 0;
}

double StepOf(PipeQuantity quantity) {
    switch (quantity) {
        case PipeQuantity::PressureAt1:
        case PipeQuantity::PressureAt2:
            return kPressureStep;
        case PipeQuantity::Length:
            return kLengthStep;
        case PipeQuantity::FlowRate:
            return kFlowStep;
        case PipeQuantity::Diameter:
            return 0;
    }
    return 0;
}

void SetPoint(WorkNetwork& work, int point, double bar, bool unknown) {
    work.WorkPoints[point].Pressure = ToSingle(bar * kPascalPerBar);
    work.WorkPoints[point].X = kAnyPlace;
    work.WorkPressureUnknown[point] = unknown;
}

}  // namespace

bool TypeQuantity(SinglePipe& pipe, PipeQuantity quantity, std::string_view text) {
    const double value = ReadNumber(text);
    switch (quantity) {
        case PipeQuantity::PressureAt1:
            pipe.pressure1 = value;
            break;
        case PipeQuantity::PressureAt2:
            pipe.pressure2 = value;
            break;
        case PipeQuantity::Length:
            pipe.length = value;
            break;
        case PipeQuantity::FlowRate:
            pipe.flowRate = value / kSecondsPerHour;
            break;
        case PipeQuantity::Diameter:
            pipe.diameter = value / kMillimetresPerMetre;
            return true;
    }
    return pipe.unknown != quantity;
}

std::string SteppedText(const SinglePipe& pipe, PipeQuantity quantity, int steps) {
    return GeneralText(ToSingle(BoxValue(pipe, quantity) + steps * StepOf(quantity)));
}

void BuildSinglePipeNetwork(const SinglePipe& pipe, WorkNetwork& work) {
    work.WorkPipeCount = 1;
    work.WorkPointCount = 2;
    work.WorkComponents.clear();
    PipeRec& record = work.WorkPipes[1];
    record.FlowRate = ToSingle(pipe.flowRate);
    record.Length = ToSingle(pipe.length);
    record.Diameter = ToSingle(pipe.diameter);
    record.LossSum = ToSingle(pipe.lossSum);
    record.StartPoint = 1;
    record.EndPoint = 2;
    record.FlowFromPoint = pipe.direction == FlowDirection::From1To2 ? 1 : 2;
    record.Z1 = 0;
    record.Z2 = 0;
    record.X1 = kAnyPlace;
    SetPoint(work, 1, pipe.pressure1, pipe.unknown == PipeQuantity::PressureAt1);
    SetPoint(work, 2, pipe.pressure2, pipe.unknown == PipeQuantity::PressureAt2);
    work.WorkFlowUnknown[1] = pipe.unknown == PipeQuantity::FlowRate;
}

bool IsComplete(const SinglePipe& pipe) {
    const bool lengthMissing = pipe.length <= 0 && pipe.unknown != PipeQuantity::Length;
    return pipe.diameter > 0 && !lengthMissing;
}

std::optional<BoxText> ComputedText(const SinglePipe& pipe, const WorkNetwork& work) {
    const auto pressureText = [&work](int point) {
        return FormatNumber(work.WorkPoints[point].Pressure / kPascalPerBar, "###.##");
    };
    switch (pipe.unknown) {
        case PipeQuantity::PressureAt1:
            return BoxText{pipe.unknown, pressureText(1)};
        case PipeQuantity::PressureAt2:
            return BoxText{pipe.unknown, pressureText(2)};
        case PipeQuantity::FlowRate: {
            const double perHour = work.WorkPipes[1].FlowRate * kSecondsPerHour;
            return BoxText{pipe.unknown, GeneralText(static_cast<float>(perHour))};
        }
        default:
            return std::nullopt;
    }
}

DirectionView FollowPressures(SinglePipe& pipe) {
    const bool turnable =
        pipe.unknown == PipeQuantity::PressureAt1 || pipe.unknown == PipeQuantity::PressureAt2;
    if (turnable) return {true, true, pipe.direction};
    pipe.direction =
        pipe.pressure1 < pipe.pressure2 ? FlowDirection::From2To1 : FlowDirection::From1To2;
    return {false, pipe.pressure1 != pipe.pressure2, pipe.direction};
}

void TurnDirection(SinglePipe& pipe) {
    pipe.direction = pipe.direction == FlowDirection::From1To2 ? FlowDirection::From2To1
                                                               : FlowDirection::From1To2;
}

}  // namespace idrova

// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/report.h"

#include <chrono>
#include <ctime>
#include <string_view>

#include "base/number_text.h"
#include "base/print_zones.h"
#include "model/pipe_sizes.h"
#include "model/version.h"
#include "results/report_figures.h"

namespace idrova {
namespace {

constexpr std::string_view kReportStart =
    "****************************************************************";

/// Stood before a nominal size on the dot-matrix printers of old; it is part of the format.
constexpr char kNominalSizeMark = '\x16';

std::string_view ModeText(WorkMode mode) {
    switch (mode) {
        case WorkMode::Graphic:
            return "Graphic";
        case WorkMode::Table:
            return "Table";
        case WorkMode::SinglePipe:
            return "Single computation";
    }
    return "";
}

std::string NominalDesignation(float diameter) {
    const int size = NominalSizeOf(diameter);
    if (size == 0) return "";
    return kNominalSizeMark + std::string(NominalSizeNames[size]);
}

class ReportPrinter {
  public:
    ReportPrinter(const Settings& settings, const WorkNetwork& work)
        : settings_(settings), work_(work) {}

    void Heading(std::string_view project, const ReportTime& when) {
        EmptyLine();
        Line(kReportStart);
        out_.Text("RESULTS CALCULATION    (ver.").NextZone();
        out_.Text(kVersionNumber).Text(kVersionRelease).Text(")").NextZone();
        out_.Text(when.date).NextZone().Text(when.time).EndLine();
        out_.Text("Project: ").NextZone().Text(project).EndLine();
        out_.Text("Mode: ").Text(ModeText(settings_.Mode)).EndLine();
    }

    void Conditions() {
        const bool gas = settings_.EquationType == Equation::Compressible;
        const bool circular = settings_.SectionType == Section::Circular;
        EmptyLine();
        out_.Text("Fluid: ").Text(settings_.FluidName).EndLine();
        out_.Text("Density [kg/mc]: ").NextZone().Number(settings_.FluidDensity).NextZone();
        out_.Text("viscosity: ").NextZone().Number(settings_.FluidViscosity).EndLine();
        EmptyLine();
        out_.Text("Roughness[m]: ").NextZone().Number(settings_.Roughness).EndLine();
        EmptyLine();
        out_.Text("Correlation: ").NextZone();
        Line(gas ? "Compressible gas" : "Incompressible fluid");
        out_.Text("Section: ").NextZone();
        Line(circular ? "Circular" : "Rectangular");
        EmptyLine();
    }

    void Points() {
        for (const auto& [number, point] : DrawnPoints(work_)) Point(number, point);
        EmptyLine();
    }

    void PressureDifferences() {
        for (const auto& [number, pipe] : DrawnPipes(work_)) {
            const PipeFigures figures = FiguresOf(pipe, work_, settings_);
            out_.Text("pipe" + StrText(number)).NextZone();
            out_.Text("P" + StrText(int{pipe.StartPoint}) + "-P" + StrText(int{pipe.EndPoint}));
            out_.NextZone().Text("[Pa]").NextZone().Number(figures.drop).NextZone();
            out_.Text("[Pa/m]").NextZone().Number(figures.dropPerMetre).EndLine();
        }
        EmptyLine();
    }

    void PipeBlocks() {
        for (const auto& [number, pipe] : DrawnPipes(work_)) PipeBlock(number, pipe);
    }

    void Pumps() {
        EmptyLine();
        Line("PUMPS INSERTED");
        ForComponents(CellKind::Pump, [this](const CellRec& pump) {
            Line(pump.Name);
            out_.Text("Min flow rate, max [kg/h]").NextZone();
            out_.Number(ScaledSingle(pump.MinFlow, kSecondsPerHour)).NextZone();
            out_.Number(ScaledSingle(pump.MaxFlow, kSecondsPerHour)).EndLine();
            Row("Flow rate calculated [kg/h]", ScaledSingle(pump.Result, kSecondsPerHour));
        });
    }

    void Losses() {
        EmptyLine();
        Line("INSERTED CONCENTRATED PRESSURE DROPS");
        ForComponents(CellKind::Loss, [this](const CellRec& loss) {
            Line(loss.Name);
            if (loss.Param2 != 0) Row("Fixed drop [Pa]", loss.Param2);
            if (loss.Param1 != 0) Row("Coefficient", loss.Param1);
        });
    }

    const std::string& Bytes() const { return out_.Bytes(); }

  private:
    void EmptyLine() { out_.EndLine(); }
    void Line(std::string_view text) { out_.Text(text).EndLine(); }
    void Row(std::string_view label, float value) {
        out_.Text(label).NextZone().Number(value).EndLine();
    }
    void PatternRow(std::string_view label, double value) {
        out_.Text(label).NextZone().Text(FormatNumber(value, "####.###")).EndLine();
    }

    void Point(int number, const PointRec& point) {
        const bool bar = settings_.PressureUnit == Unit::Bar;
        const bool known = !work_.WorkPressureUnknown[number];
        const float shown = point.Pressure / settings_.PressureUnitFactor;
        out_.Text("Point" + StrText(number)).NextZone();
        out_.Text("Pressure [Pa],").Text(bar ? "[bar]" : "[mbar]").NextZone();
        out_.Number(point.Pressure).NextZone();
        out_.Text(FormatNumber(shown, "###.###")).NextZone();
        out_.Text(known ? "Known" : "").EndLine();
    }

    void PipeBlock(int number, const PipeRec& pipe) {
        const PipeFigures figures = FiguresOf(pipe, work_, settings_);
        out_.Text("pipe").NextZone().Number(number).EndLine();
        out_.Text("   Flow rate [kg/h],[mc/h]").NextZone();
        out_.Number(ScaledSingle(pipe.FlowRate, kSecondsPerHour)).NextZone();
        out_.Number(ScaledSingle(pipe.FlowRate, kSecondsPerHour / settings_.FluidDensity))
            .EndLine();
        SectionLine(pipe);
        Row("   Lenght [m]", pipe.Length);
        if (pipe.LossSum != 0) Row("   Sum of loss coefficients", pipe.LossSum);
        out_.Text("   Height [m] Z1").NextZone().Number(int{pipe.Z1}).NextZone();
        out_.Text("Z2").NextZone().Number(int{pipe.Z2}).EndLine();
        PatternRow("   Speed [m/s]", figures.speed);
        PatternRow("   Reynolds", figures.reynolds);
    }

    void SectionLine(const PipeRec& pipe) {
        const float side = ScaledSingle(pipe.Diameter, kMillimetresPerMetre);
        if (settings_.SectionType == Section::Circular) {
            out_.Text("   Diameter [mm]").NextZone().Number(side).NextZone();
            return Line(NominalDesignation(pipe.Diameter));
        }
        out_.Text("   Side a [mm]").NextZone().Number(side).NextZone();
        out_.Text("   Side b [mm]").NextZone();
        out_.Number(ScaledSingle(pipe.OuterSize, kMillimetresPerMetre)).EndLine();
    }

    template <typename Print>
    void ForComponents(CellKind kind, const Print& print) {
        for (const auto& [cell, record] : work_.WorkComponents) {
            if (HoldsComponent(record, kind)) print(record);
        }
    }

    const Settings& settings_;
    const WorkNetwork& work_;
    PrintZoneWriter out_;
};

std::string ClockText(const std::tm& local, const char* format) {
    std::string text(sizeof "2026-11-22 21:55:26", '\0');
    text.resize(std::strftime(text.data(), text.size(), format, &local));
    return text;
}

}  // namespace

ReportTime CurrentReportTime() {
    const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    std::tm local{};
    localtime_r(&now, &local);
    // Numbers only: these conversions do not depend on the locale.
    return {ClockText(local, "%Y-%m-%d"), ClockText(local, "%H:%M:%S")};
}

std::string ReportText(const Settings& settings, std::string_view project, const WorkNetwork& work,
                       const ReportTime& when) {
    ReportPrinter report(settings, work);
    report.Heading(project, when);
    report.Conditions();
    report.Points();
    report.PressureDifferences();
    report.PipeBlocks();
    report.Pumps();
    report.Losses();
    return report.Bytes();
}

}  // namespace idrova

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_pompa.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "editor/component_insertion.h"
#include "physdata/component_commands.h"
#include "results/working_points.h"
#include "ui/kit/coloured_field.h"
#include "ui/kit/controls.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/name_list.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"
#include "ui/windows/pump_plot.h"

namespace idrova {

FrmPompa::FrmPompa(Program& program)
    : ChildWindow("FrmPompa", "Idrova - Pump"),
      program_(program),
      names_(new NameList("Combo1")),
      maxPrevalence_(TextField("Text1")),
      minFlow_(TextField("Text2")),
      minPrevalence_(TextField("Text3")),
      maxFlow_(TextField("Text4")),
      coefficientA_(ValueLabel("Label6")),
      coefficientB_(ValueLabel("Label8")),
      coefficientC_(ValueLabel("Label11")),
      flowAt_(TextField("Text6")),
      prevalenceAt_(new ComputedField("Text5")),
      chart_(new PumpPlot("MSChart1")) {
    auto* row = new QHBoxLayout(this);
    row->addLayout(Data(), 1);
    row->addWidget(chart_, 1);
    names_->setMinimumContentsLength(16);
    OnChosen(*names_, [this](int position) { Choose(position); });
    connect(flowAt_, &QLineEdit::textChanged, this, [this] { Evaluate(); });
    names_->Refill(RecordNames(program_.components.pumps));
    setFocusProxy(names_);
}

QBoxLayout* FrmPompa::Data() {
    auto* column = new QVBoxLayout;
    column->addLayout(Rows());
    column->addStretch(1);
    column->addLayout(Buttons());
    return column;
}

QGridLayout* FrmPompa::Rows() {
    auto* rows = new FieldGrid;
    rows->AddField("Name", names_);
    rows->AddField("Max prevalence", maxPrevalence_, "[m]");
    rows->AddField("Min flow rate", minFlow_, "[kg/h]");
    rows->AddField("Min prevalence", minPrevalence_, "[m]");
    rows->AddField("Max flow rate", maxFlow_, "[kg/h]");
    rows->AddValue("a", coefficientA_);
    rows->AddValue("b", coefficientB_);
    rows->AddValue("c", coefficientC_);
    rows->AddField("Flow rate [kg/h]", flowAt_);
    rows->AddField("Prevalence", prevalenceAt_, "[m]");
    return rows;
}

QBoxLayout* FrmPompa::Buttons() {
    QPushButton* save = CommandButton("Command2", "Save", [this] { Save(); });
    QPushButton* remove = CommandButton("Command3", "Delete", [this] { Delete(); });
    SetDefaultButton(save);
    KeepReturnIn(flowAt_);  // the flow rate to evaluate is no datum of the pump to save
    return ButtonRow({save, remove});
}

PumpFields FrmPompa::Fields() const {
    return {.name = names_->Text(),
            .maxPrevalence = FromQt(maxPrevalence_->text()),
            .minFlow = FromQt(minFlow_->text()),
            .minPrevalence = FromQt(minPrevalence_->text()),
            .maxFlow = FromQt(maxFlow_->text())};
}

void FrmPompa::ShowCurve(const PumpRecord& pump) {
    curve_ = CurveOf(pump).value_or(curve_);
    const CurveLabels labels = LabelsOf(curve_);
    coefficientA_->setText(ToQt(labels.a));
    coefficientB_->setText(ToQt(labels.b));
    coefficientC_->setText(ToQt(labels.c));
    if (const auto chart = ChartOf(pump)) {
        charted_ = pump;
        chart_->ShowChart(*chart);
        ShowState();
    }
    if (!flowAt_->text().isEmpty()) Evaluate();
}

void FrmPompa::ShowState() {
    std::vector<ChartPlace> places;
    const RunRecord* record = RecordOf(program_);
    if (record != nullptr && record->results && !ResultsAreOld(program_)) {
        for (const ComponentResult& pump : WorkingPoints(*record->results, charted_.name)) {
            places.push_back(PlaceOnChart(charted_.qMin, charted_.qMax, pump.flow, pump.change));
        }
    }
    chart_->ShowWorkingPoints(places);
}

void FrmPompa::Choose(int position) {
    const PumpDb& pumps = program_.components.pumps;
    if (!pumps.Holds(position + 1)) return;
    const PumpRecord& pump = pumps[position + 1];
    const PumpFields shown = ShowPump(pump);
    maxPrevalence_->setText(ToQt(shown.maxPrevalence));
    minFlow_->setText(ToQt(shown.minFlow));
    minPrevalence_->setText(ToQt(shown.minPrevalence));
    maxFlow_->setText(ToQt(shown.maxFlow));
    ShowCurve(pump);
}

void FrmPompa::Evaluate() {
    prevalenceAt_->setText(ToQt(PrevalenceText(curve_, FromQt(flowAt_->text()))));
}

void FrmPompa::Save() {
    if (SavePump(program_.components, Fields(), program_.folder, program_.boxes) !=
        EditOutcome::Done) {
        return;
    }
    const PumpDb& pumps = program_.components.pumps;
    names_->Refill(RecordNames(pumps), pumps.count - 1);
    ShowCurve(pumps[pumps.count]);
    RefreshComponentChoice(program_.editor, program_.components);
    program_.changed();
}

void FrmPompa::Delete() {
    const PumpDb& pumps = program_.components.pumps;
    const int slot = ChosenSlot(pumps, names_->currentIndex(), names_->Text());
    if (DeletePump(program_.components, slot, program_.folder, program_.boxes) !=
        EditOutcome::Done) {
        return;
    }
    names_->Refill(RecordNames(pumps));
    RefreshComponentChoice(program_.editor, program_.components);
    program_.changed();
}

}  // namespace idrova

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_pompa.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "editor/component_insertion.h"
#include "physdata/component_commands.h"
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
      Combo1(new NameList("Combo1")),
      Text1(TextField("Text1")),
      Text2(TextField("Text2")),
      Text3(TextField("Text3")),
      Text4(TextField("Text4")),
      Label6(ValueLabel("Label6")),
      Label8(ValueLabel("Label8")),
      Label11(ValueLabel("Label11")),
      Text6(TextField("Text6")),
      Text5(ComputedField("Text5")),
      MSChart1(new PumpPlot("MSChart1")) {
    auto* row = new QHBoxLayout(this);
    row->addLayout(Data());
    row->addWidget(MSChart1, 1);
    OnChosen(*Combo1, [this](int position) { Combo1_Click(position); });
    connect(Text6, &QLineEdit::textChanged, this, [this] { Text6_Change(); });
    Combo1->Refill(RecordNames(program_.components.pumps));
    setFocusProxy(Combo1);
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
    rows->AddField("Name", Combo1);
    rows->AddField("Max prevalence", Text1, "[m]");
    rows->AddField("Min flow rate", Text2, "[kg/h]");
    rows->AddField("Min prevalence", Text3, "[m]");
    rows->AddField("Max flow rate", Text4, "[kg/h]");
    rows->AddValue("a", Label6);
    rows->AddValue("b", Label8);
    rows->AddValue("c", Label11);
    rows->AddField("Flow rate [kg/h]", Text6);
    rows->AddField("Prevalence", Text5, "[m]");
    return rows;
}

QBoxLayout* FrmPompa::Buttons() {
    QPushButton* save = CommandButton("Command2", "Save", [this] { Command2_Click(); });
    QPushButton* remove = CommandButton("Command3", "Delete", [this] { Command3_Click(); });
    SetDefaultButton(save);
    KeepReturnIn(Text6);  // the flow rate to evaluate is no datum of the pump to save
    return ButtonRow({save, remove});
}

PumpFields FrmPompa::Fields() const {
    return {.name = Combo1->Text(),
            .maxPrevalence = FromQt(Text1->text()),
            .minFlow = FromQt(Text2->text()),
            .minPrevalence = FromQt(Text3->text()),
            .maxFlow = FromQt(Text4->text())};
}

void FrmPompa::ShowCurve(const PumpRecord& pump) {
    curve_ = CurveOf(pump).value_or(curve_);
    const CurveLabels labels = LabelsOf(curve_);
    Label6->setText(ToQt(labels.a));
    Label8->setText(ToQt(labels.b));
    Label11->setText(ToQt(labels.c));
    if (const auto chart = ChartOf(pump)) MSChart1->ShowChart(*chart);
    if (!Text6->text().isEmpty()) Text6_Change();
}

void FrmPompa::Combo1_Click(int position) {
    const PumpDb& pumps = program_.components.pumps;
    if (!pumps.Holds(position + 1)) return;
    const PumpRecord& pump = pumps[position + 1];
    const PumpFields shown = ShowPump(pump);
    Text1->setText(ToQt(shown.maxPrevalence));
    Text2->setText(ToQt(shown.minFlow));
    Text3->setText(ToQt(shown.minPrevalence));
    Text4->setText(ToQt(shown.maxFlow));
    ShowCurve(pump);
}

void FrmPompa::Text6_Change() {
    Text5->setText(ToQt(PrevalenceText(curve_, FromQt(Text6->text()))));
}

void FrmPompa::Command2_Click() {
    if (SavePump(program_.components, Fields(), program_.folder, program_.boxes) !=
        EditOutcome::Done) {
        return;
    }
    const PumpDb& pumps = program_.components.pumps;
    Combo1->Refill(RecordNames(pumps), pumps.count - 1);
    ShowCurve(pumps[pumps.count]);
    RefreshComponentChoice(program_.editor, program_.components);
    program_.changed();
}

void FrmPompa::Command3_Click() {
    const PumpDb& pumps = program_.components.pumps;
    const int slot = ChosenSlot(pumps, Combo1->currentIndex(), Combo1->Text());
    if (DeletePump(program_.components, slot, program_.folder, program_.boxes) !=
        EditOutcome::Done) {
        return;
    }
    Combo1->Refill(RecordNames(pumps));
    RefreshComponentChoice(program_.editor, program_.components);
    program_.changed();
}

}  // namespace idrova

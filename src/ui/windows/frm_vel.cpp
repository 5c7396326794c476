// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_vel.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/typed_size.h"
#include "model/pipe_sizes.h"
#include "table/fast_settings.h"
#include "ui/kit/controls.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/name_list.h"
#include "ui/kit/qt_text.h"
#include "ui/kit/text_field.h"
#include "ui/program.h"

namespace idrova {

namespace {

/// A box that takes no negative number.
class SizeField : public SelectingField {
  public:
    explicit SizeField(const char* name) {
        Named(this, name);
        connect(this, &QLineEdit::textChanged, this, [this](const QString& text) { Take(text); });
        connect(this, &QLineEdit::editingFinished, this, [this] { negative_ = false; });
    }

  private:
    void Take(const QString& text) {
        const QString shown = ToQt(TypedSize(FromQt(text), negative_));
        // The same text put again would take the cursor to its end and forget what can be undone.
        if (shown != text) setText(shown);
    }

    bool negative_ = false;
};

}  // namespace

FrmVel::FrmVel(Program& program)
    : ChildWindow("FrmVel", "Idrova - fast data"),
      program_(program),
      flow_(TextField("Text1")),
      length_(new SizeField("Text2")),
      sizes_(SizeList("Combo2")),
      diameter_(new SizeField("Text3")) {
    auto* column = new QVBoxLayout(this);
    column->addLayout(Rows());
    column->addStretch(1);
    ShowSizeOf(*diameter_, *sizes_);
    OnChosen(*sizes_, [this](int position) { ChooseSize(position); });
    setFocusProxy(flow_);
}

QGridLayout* FrmVel::Rows() {
    auto* rows = new FieldGrid;
    rows->AddHeading(Named(PlainLabel("set to all pipes"), "Label3"));
    AddSetting(*rows, "Flow rate [kg/h]", flow_, "Command1", [this] { SetFlowRates(); });
    AddSetting(*rows, "Lenght [m]", length_, "Command2", [this] { SetLengths(); });
    rows->AddField("Diameter \"", sizes_);
    AddSetting(*rows, "Diameter [mm]", diameter_, "Command3", [this] { SetDiameters(); });
    return rows;
}

void FrmVel::AddSetting(FieldGrid& rows, const QString& caption, QLineEdit* field,
                        const char* button, const std::function<void()>& set) {
    QPushButton* setter = CommandButton(button, "Set", set);
    setter->setAccessibleName("Set " + caption);
    rows.AddField(caption, field);
    rows.AddButton(setter);
    connect(field, &QLineEdit::returnPressed, setter, &QPushButton::click);
}

void FrmVel::SetFlowRates() {
    SetAllFlowRates(program_.project, FromQt(flow_->text()), program_.boxes);
    program_.records.erase(WorkMode::Graphic);  // the flows that are shown are not those of a run
    program_.changed();
}

void FrmVel::SetLengths() {
    SetAllLengths(program_.project, FromQt(length_->text()), program_.boxes);
    program_.changed();
}

void FrmVel::SetDiameters() {
    SetAllDiameters(program_.project, FromQt(diameter_->text()), program_.boxes);
    program_.changed();
}

void FrmVel::ChooseSize(int position) {
    diameter_->setText(ToQt(InnerDiameterText(position + 1)));
}

}  // namespace idrova

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/fitting_picker.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QVBoxLayout>
#include <utility>

#include "base/number_text.h"
#include "ui/kit/controls.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

constexpr QSize kPreferredSize(440, 420);

QString SumText(double sum) {
    return ToQt(GeneralText(ToSingle(sum)));
}

}  // namespace

FittingPicker::FittingPicker(std::vector<FittingCount> fittings, double before, QWidget* parent)
    : QDialog(parent),
      fittings_(std::move(fittings)),
      before_(before),
      list_(Named(new QLabel, "FittingList")),
      sum_(Named(new QLabel, "FittingSum")) {
    Named(this, "FittingPicker");
    setWindowTitle("Fittings of the pipe");
    list_->setTextFormat(Qt::PlainText);
    list_->setWordWrap(true);
    auto* scroller = new QScrollArea;
    scroller->setWidgetResizable(true);
    scroller->setWidget(Counts());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(scroller, 1);
    column->addWidget(list_);
    column->addWidget(sum_);
    column->addWidget(buttons);
    resize(kPreferredSize);
    ShowSum();
}

QWidget* FittingPicker::Counts() {
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    grid->setColumnStretch(1, 1);
    for (int i = 0; i < static_cast<int>(fittings_.size()); ++i) {
        FittingCount& fitting = fittings_[static_cast<std::size_t>(i)];
        auto* count = new QSpinBox;
        count->setObjectName(QString("Count_%1").arg(i));
        count->setRange(0, 99);
        grid->addWidget(count, i, 0);
        grid->addWidget(LabelFor(count, ToQt(fitting.name)), i, 1);
        grid->addWidget(new QLabel(SumText(fitting.coefficient)), i, 2, Qt::AlignRight);
        connect(count, &QSpinBox::valueChanged, this, [this, &fitting](int value) {
            fitting.count = value;
            ShowSum();
        });
    }
    grid->setRowStretch(grid->rowCount(), 1);
    return content;
}

void FittingPicker::ShowSum() {
    list_->setText(ToQt(ListText(fittings_)));
    const QString added = SumText(Picked());
    sum_->setText(before_ == 0 ? "Sum: " + added
                               : QString("Sum: %1 + %2 = %3")
                                     .arg(SumText(before_), added, SumText(before_ + Picked())));
}

std::optional<double> PickFittings(const LossDb& losses, double before, QWidget* parent) {
    FittingPicker picker(FittingsOf(losses), before, parent);
    if (picker.exec() != QDialog::Accepted) return std::nullopt;
    return picker.Picked();
}

QWidget* FittingRow(QLineEdit* field, const std::function<void()>& pick) {
    auto* row = new QWidget;
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    auto* button = CommandButton("PickFittings", "...", pick);
    button->setAccessibleName("Pick fittings");
    button->setToolTip("Count fittings from the concentrated losses");
    button->setMaximumWidth(36);
    line->addWidget(field, 1);
    line->addWidget(button);
    return row;
}

}  // namespace idrova

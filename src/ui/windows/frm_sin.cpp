// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_sin.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include "model/pipe_sizes.h"
#include "shell/run_command.h"
#include "ui/kit/controls.h"
#include "ui/kit/flow_arrow.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/name_list.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

namespace {

constexpr int kDirectionInterval = 300;  ///< ms
constexpr int kFormWidth = 640;
constexpr QRgb kUnknownColour = 0xFFFFC0;  ///< light yellow
constexpr QRgb kKnownColour = 0xFFFFFF;

struct QuantityNames {
    const char* caption;
    const char* box;
    const char* more;  ///< null without arrows
    const char* less;
    const char* option;
};

/// In the order of `PipeQuantity`.
constexpr std::array<QuantityNames, kPipeQuantities> kNames = {{
    {"pressure [bar]", "Text2", "Command3", "Command4", "OptInc_0"},
    {"pressure [bar]", "Text3", "Command5", "Command6", "OptInc_1"},
    {"length [m]", "Text1", "Command1", "Command2", "OptInc_2"},
    {"flow rate [kg/h]", "Text4", "Command7", "Command8", "OptInc_3"},
    {"diameter [mm]", "Text5", nullptr, nullptr, "OptInc_4"},
}};

constexpr std::array<PipeQuantity, 4> kSteppedQuantities = {
    PipeQuantity::PressureAt1, PipeQuantity::PressureAt2, PipeQuantity::Length,
    PipeQuantity::FlowRate};

// Columns of the grid.
constexpr int kPoint = 0;
constexpr int kCaption = 1;
constexpr int kBox = 2;
constexpr int kMore = 3;
constexpr int kLess = 4;
constexpr int kUnknown = 5;

void Colour(QWidget& box, QRgb colour) {
    QPalette palette = box.palette();
    palette.setColor(QPalette::Base, QColor(colour));
    palette.setColor(QPalette::Text, Qt::black);
    box.setPalette(palette);
}

}  // namespace

FrmSin::FrmSin(Program& program)
    : ChildWindow("FrmSin", "Idrova - Single pip calculation"),
      program_(program),
      sizes_(SizeList("Combo2")),
      turnButton_(CommandButton("Command9", "Directions", [this] { Turn(); })),
      arrow_(new FlowArrow),
      directionTimer_(Named(new QTimer(this), "Timer1")) {
    StayOnEscape();
    auto* form = new QWidget;
    form->setMaximumWidth(kFormWidth);
    auto* grid = new QGridLayout(form);
    grid->setColumnStretch(kBox, 1);
    AddQuantity(*grid, 0, PipeQuantity::PressureAt1, "Point 1");
    AddQuantity(*grid, 1, PipeQuantity::PressureAt2, "Point 2");
    AddDirection(*grid, 2);
    AddQuantity(*grid, 3, PipeQuantity::Length, "Pipe");
    AddQuantity(*grid, 4, PipeQuantity::FlowRate);
    AddDiameterList(*grid, 5);
    AddQuantity(*grid, 6, PipeQuantity::Diameter);
    auto* options = new QButtonGroup(this);
    for (const Controls& controls : controls_) options->addButton(controls.unknown);
    auto* column = new QVBoxLayout(this);
    column->addWidget(form);
    column->addStretch(1);

    for (int i = 0; i < kPipeQuantities; ++i) {
        const auto quantity = static_cast<PipeQuantity>(i);
        connect(controls_[i].unknown, &QRadioButton::toggled, this, [this, quantity](bool chosen) {
            if (chosen) ChooseUnknown(quantity);
        });
    }
    Of(pipe_.unknown).unknown->setChecked(true);
    connect(directionTimer_, &QTimer::timeout, this, [this] { ShowDirection(); });
    directionTimer_->start(kDirectionInterval);
    ShowDirection();
    setFocusProxy(Of(PipeQuantity::PressureAt1).box);
}

void FrmSin::AddQuantity(QGridLayout& grid, int row, PipeQuantity quantity, const QString& point) {
    const QuantityNames& names = kNames[static_cast<int>(quantity)];
    const QString what = (point.isEmpty() ? QString() : point + ", ") + names.caption;
    Controls& controls = Of(quantity);
    controls.box = TextField(names.box);
    controls.box->setAccessibleName(what);
    connect(controls.box, &QLineEdit::textChanged, this, [this, quantity] { TakeTyped(quantity); });
    if (!point.isEmpty()) grid.addWidget(PlainLabel(point), row, kPoint);
    grid.addWidget(LabelFor(controls.box, names.caption), row, kCaption);
    grid.addWidget(controls.box, row, kBox);
    if (names.more != nullptr) {
        controls.more = Named(Arrow(quantity, 1, "Increase " + what), names.more);
        controls.less = Named(Arrow(quantity, -1, "Decrease " + what), names.less);
        grid.addWidget(controls.more, row, kMore);
        grid.addWidget(controls.less, row, kLess);
    }
    controls.unknown = Named(new QRadioButton("Unknown"), names.option);
    controls.unknown->setAccessibleName("Unknown: " + what);
    grid.addWidget(controls.unknown, row, kUnknown);
}

QToolButton* FrmSin::Arrow(PipeQuantity quantity, int steps, const QString& what) {
    auto* button = new QToolButton;
    button->setArrowType(steps > 0 ? Qt::UpArrow : Qt::DownArrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAccessibleName(what);
    button->setToolTip(what);
    connect(button, &QToolButton::clicked, this,
            [this, quantity, steps] { Step(quantity, steps); });
    return button;
}

void FrmSin::AddDiameterList(QGridLayout& grid, int row) {
    OnChosen(*sizes_, [this](int position) { ChooseSize(position); });
    grid.addWidget(LabelFor(sizes_, "diameter \""), row, kCaption);
    grid.addWidget(sizes_, row, kBox);
}

void FrmSin::AddDirection(QGridLayout& grid, int row) {
    grid.addWidget(arrow_, row, kCaption, 1, 2);
    grid.addWidget(turnButton_, row, kMore, 1, kUnknown - kMore + 1);
}

void FrmSin::TakeTyped(PipeQuantity quantity) {
    if (TypeQuantity(pipe_, quantity, FromQt(Of(quantity).box->text()))) Recompute();
}

void FrmSin::Step(PipeQuantity quantity, int steps) {
    Of(quantity).box->setText(ToQt(SteppedText(pipe_, quantity, steps)));
}

void FrmSin::ChooseUnknown(PipeQuantity quantity) {
    pipe_.unknown = quantity;
    for (const PipeQuantity stepped : kSteppedQuantities) {
        const bool known = stepped != quantity;
        const Controls& controls = Of(stepped);
        controls.more->setEnabled(known);
        controls.less->setEnabled(known);
        controls.box->setEnabled(known);
        Colour(*controls.box, known ? kKnownColour : kUnknownColour);
    }
    ShowDirection();
}

void FrmSin::ChooseSize(int position) {
    Of(PipeQuantity::Diameter).box->setText(ToQt(InnerDiameterText(position + 1)));
}

void FrmSin::Turn() {
    TurnDirection(pipe_);
    Recompute();
}

void FrmSin::ShowDirection() {
    const DirectionView view = FollowPressures(pipe_);
    turnButton_->setEnabled(view.mayTurn);
    arrow_->Show(view);
}

void FrmSin::Recompute() {
    // The sign of the flow that is shown belongs to the arrow that is shown.
    ShowDirection();
    // Such a run ends within one keystroke: a progress window would only flicker.
    const auto write = ReportWriter(program_.project, program_.folder, program_.report);
    const auto writeReport = [&](const Settings& settings, const WorkNetwork& work) {
        return FirstFailure(write(settings, work));
    };
    SinglePipeResult result = RunSinglePipe(pipe_, program_.project, program_.work,
                                            {.boxes = program_.boxes, .writeReport = writeReport});
    program_.records[WorkMode::SinglePipe] = std::move(result.record);
    program_.changed();
    if (result.box) Of(result.box->box).box->setText(ToQt(result.box->text));
}

Status FrmSin::FirstFailure(const Status& stored) {
    const bool told = reportFailed_;
    reportFailed_ = !stored;
    return told ? Status(Done{}) : stored;
}

}  // namespace idrova

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_sin.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "base/number_text.h"
#include "model/pipe_sizes.h"
#include "results/sizing_texts.h"
#include "shell/run_command.h"
#include "ui/kit/coloured_field.h"
#include "ui/kit/controls.h"
#include "ui/kit/fitting_picker.h"
#include "ui/kit/flow_arrow.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/name_list.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

namespace {

constexpr int kDirectionInterval = 300;  ///< ms
constexpr int kTypingPause = 700;        ///< ms
constexpr int kFormWidth = 640;

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

void AddComputed(QGridLayout& grid, int row, const char* caption, ComputedField* field) {
    grid.addWidget(LabelFor(field, caption), row, kCaption);
    grid.addWidget(field, row, kBox);
}

/// Whether reports are collected changes no result.
bool GiveTheSame(Settings one, const Settings& other) {
    one.ResultsInSequence = other.ResultsInSequence;
    return one == other;
}

}  // namespace

FrmSin::FrmSin(Program& program)
    : ChildWindow("FrmSin", "Idrova - Single pip calculation"),
      program_(program),
      computedWith_(program.project.settings),
      sizes_(SizeList("Combo2")),
      lossSum_(TextField("LossSum")),
      turnButton_(CommandButton("Command9", "Directions", [this] { Turn(); })),
      velocity_(new ComputedField("Velocity")),
      dropPerMetre_(new ComputedField("DropPerMetre")),
      arrow_(new FlowArrow),
      directionTimer_(Named(new QTimer(this), "Timer1")),
      pauseTimer_(new QTimer(this)) {
    StayOnEscape();
    program_.records.erase(WorkMode::SinglePipe);  // of a window that has been closed
    LayOut();
    AddUnknownChoice();
    SetTabOrder();
    ShowUnknown();
    ShowDirection();
    connect(directionTimer_, &QTimer::timeout, this, [this] { ShowDirection(); });
    directionTimer_->start(kDirectionInterval);
    pauseTimer_->setSingleShot(true);
    pauseTimer_->setInterval(kTypingPause);
    connect(pauseTimer_, &QTimer::timeout, this, [this] { Tell(); });
    setFocusProxy(Of(PipeQuantity::PressureAt1).box);
}

void FrmSin::LayOut() {
    auto* form = new QWidget;
    form->setMaximumWidth(kFormWidth);
    auto* grid = new QGridLayout(form);
    grid->setColumnStretch(kBox, 1);
    AddQuantity(*grid, 0, PipeQuantity::PressureAt1, "Point 1");
    AddQuantity(*grid, 1, PipeQuantity::PressureAt2, "Point 2");
    AddDirection(*grid, 2);
    AddQuantity(*grid, 3, PipeQuantity::Length, "Pipe");
    AddQuantity(*grid, 4, PipeQuantity::FlowRate);
    AddComputed(*grid, 5, "velocity [m/s]", velocity_);
    AddComputed(*grid, 6, "losses [Pa/m]", dropPerMetre_);
    AddDiameterList(*grid, 7);
    AddQuantity(*grid, 8, PipeQuantity::Diameter);
    ShowSizeOf(*Of(PipeQuantity::Diameter).box, *sizes_);
    grid->addWidget(LabelFor(lossSum_, "ΣK of fittings"), 9, kCaption);
    grid->addWidget(FittingRow(lossSum_, [this] { PickLosses(); }), 9, kBox);
    connect(lossSum_, &QLineEdit::textChanged, this, [this] { TakeLossSum(); });
    auto* column = new QVBoxLayout(this);
    column->addWidget(form);
    column->addStretch(1);
}

/// Typing goes from box to box; what is chosen once comes behind them.
void FrmSin::SetTabOrder() {
    const std::array<QWidget*, 9> order = {Of(PipeQuantity::PressureAt1).box,
                                           Of(PipeQuantity::PressureAt2).box,
                                           Of(PipeQuantity::Length).box,
                                           Of(PipeQuantity::FlowRate).box,
                                           sizes_,
                                           Of(PipeQuantity::Diameter).box,
                                           lossSum_,
                                           Of(PipeQuantity::FlowRate).unknown,
                                           turnButton_};
    for (std::size_t i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

void FrmSin::AddQuantity(QGridLayout& grid, int row, PipeQuantity quantity, const QString& point) {
    const QuantityNames& names = kNames[static_cast<int>(quantity)];
    const QString what = (point.isEmpty() ? QString() : point + ", ") + names.caption;
    Controls& controls = Of(quantity);
    controls.box = new ColouredField(names.box);
    controls.box->setAccessibleName(what);
    connect(controls.box, &QLineEdit::textChanged, this, [this, quantity] { TakeTyped(quantity); });
    if (!point.isEmpty()) grid.addWidget(PlainLabel(point), row, kPoint);
    grid.addWidget(LabelFor(controls.box, names.caption), row, kCaption);
    grid.addWidget(controls.box, row, kBox);
    if (names.more != nullptr) {
        controls.more = Named(Arrow(quantity, 1, "Increase " + what + " (Up)"), names.more);
        controls.less = Named(Arrow(quantity, -1, "Decrease " + what + " (Down)"), names.less);
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
    button->setFocusPolicy(Qt::NoFocus);  // it would swallow what is typed on
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

void FrmSin::AddUnknownChoice() {
    auto* options = new QButtonGroup(this);
    for (const Controls& controls : controls_) options->addButton(controls.unknown);
    Of(pipe_.unknown).unknown->setChecked(true);
    for (int i = 0; i < kPipeQuantities; ++i) {
        const auto quantity = static_cast<PipeQuantity>(i);
        connect(controls_[i].unknown, &QRadioButton::toggled, this, [this, quantity](bool chosen) {
            if (chosen) ChooseUnknown(quantity);
        });
    }
}

void FrmSin::keyPressEvent(QKeyEvent* event) {
    const int steps = event->key() == Qt::Key_Up ? 1 : event->key() == Qt::Key_Down ? -1 : 0;
    const auto* stepped = std::ranges::find_if(
        kSteppedQuantities, [this](PipeQuantity quantity) { return Of(quantity).box->hasFocus(); });
    if (steps == 0 || stepped == kSteppedQuantities.end()) return ChildWindow::keyPressEvent(event);
    Step(*stepped, steps);
}

void FrmSin::TakeTyped(PipeQuantity quantity) {
    if (TypeQuantity(pipe_, quantity, FromQt(Of(quantity).box->text()))) Recompute();
}

void FrmSin::Step(PipeQuantity quantity, int steps) {
    Of(quantity).box->setText(ToQt(SteppedText(pipe_, quantity, steps)));
}

void FrmSin::ChooseUnknown(PipeQuantity quantity) {
    pipe_.unknown = quantity;
    isSolved_ = false;
    program_.records.erase(WorkMode::SinglePipe);
    ShowUnknown();
    ShowDirection();
    program_.changed();
}

void FrmSin::ShowUnknown() {
    for (const PipeQuantity stepped : kSteppedQuantities) {
        const bool known = stepped != pipe_.unknown;
        const Controls& controls = Of(stepped);
        controls.more->setEnabled(known);
        controls.less->setEnabled(known);
        controls.box->setEnabled(known);
        controls.box->SetGround(known ? FieldGround::Typed : FieldGround::Unknown);
    }
}

void FrmSin::ChooseSize(int position) {
    Of(PipeQuantity::Diameter).box->setText(ToQt(InnerDiameterText(position + 1)));
}

void FrmSin::TakeLossSum() {
    pipe_.lossSum = std::max(ReadNumber(FromQt(lossSum_->text())), 0.0);
    Recompute();
}

void FrmSin::PickLosses() {
    const auto picked = PickFittings(program_.components.losses, pipe_.lossSum, this);
    if (picked) lossSum_->setText(ToQt(GeneralText(ToSingle(pipe_.lossSum + *picked))));
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

void FrmSin::ShowState() {
    if (GiveTheSame(computedWith_, program_.project.settings)) return ShowResults();
    Recompute();
}

void FrmSin::ShowResults() {
    for (const PipeQuantity stepped : kSteppedQuantities) {
        Of(stepped).box->SetOld(stepped == pipe_.unknown && !isSolved_);
    }
    const auto record = program_.records.find(WorkMode::SinglePipe);
    SizingTexts sizing{FromQt(velocity_->text()), FromQt(dropPerMetre_->text())};
    if (isSolved_ && record != program_.records.end()) sizing = SizingOf(record->second, 1);
    velocity_->Show(sizing.velocity, !isSolved_);
    dropPerMetre_->Show(sizing.dropPerMetre, !isSolved_);
}

void FrmSin::Recompute() {
    // The sign of the flow that is shown belongs to the arrow that is shown.
    ShowDirection();
    computedWith_ = program_.project.settings;
    SinglePipeResult result = RunSinglePipe(pipe_, program_.project, program_.work);
    isSolved_ = result.box.has_value();
    if (result.box) Of(result.box->box).box->setText(ToQt(result.box->text));
    program_.records[WorkMode::SinglePipe] = std::move(result.record);
    isTold_ = false;
    pauseTimer_->start();
    program_.changed();
}

void FrmSin::TakeEdits() {
    Tell();
}

void FrmSin::Tell() {
    pauseTimer_->stop();
    const auto record = program_.records.find(WorkMode::SinglePipe);
    if (isTold_ || record == program_.records.end()) return;
    isTold_ = true;
    const auto write = StoredReport(program_);
    const auto writeReport = [&](const Settings& settings, const WorkNetwork& work) {
        return FirstFailure(write(settings, work));
    };
    // Such a run ends within one keystroke: a progress window would only flicker.
    TellRun(record->second, {.boxes = program_.boxes, .writeReport = writeReport});
}

Status FrmSin::FirstFailure(const Status& stored) {
    const bool told = reportFailed_;
    reportFailed_ = !stored;
    return told ? Status(Done{}) : stored;
}

}  // namespace idrova

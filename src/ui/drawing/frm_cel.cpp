// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/drawing/frm_cel.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStatusTipEvent>

#include "editor/component_insertion.h"
#include "editor/deletion.h"
#include "editor/grid_view.h"
#include "editor/hover_text.h"
#include "editor/pipe_colours.h"
#include "editor/plant_drawing.h"
#include "results/network_results.h"
#include "ui/drawing/drawing_style.h"
#include "ui/drawing/plant_scene.h"
#include "ui/drawing/plant_view.h"
#include "ui/kit/controls.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

namespace {

/// One line, each step with a piece of its colour.
QString LegendText(const Legend& legend) {
    QString text = "<b>" + ToQt(legend.colours) + "</b>";
    for (const ColourStep& step : legend.steps) {
        text += QString(
                    " &nbsp; <span "
                    "style='background-color:%1'>&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;</span>&nbsp;%2")
                    .arg(ToQt(step.colour).name(), ToQt(step.text).replace(' ', "&nbsp;"));
    }
    const QString gap = legend.colours.empty() || legend.labels.empty() ? "" : " &nbsp; &nbsp; ";
    return text + gap + ToQt(legend.labels);
}

}  // namespace

FrmCel::FrmCel(Program& program)
    : ChildWindow("FrmCel", "Idrova - plant drawing"),
      program_(program),
      scene_(new PlantScene(program.project, program.folder)),
      view_(Named(new PlantView(scene_, program.project), "Drawing")),
      legend_(Named(new QLabel, "Legend")),
      ScrX(Bar("ScrX", Qt::Horizontal)),
      ScrY(Bar("ScrY", Qt::Vertical)) {
    scene_->setParent(this);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(view_, 0, 0);
    grid->addWidget(ScrY, 0, 1);
    grid->addWidget(ScrX, 1, 0);
    grid->addWidget(legend_, 2, 0, 1, 2);
    // On the ground of the cells, as the colours are made for it.
    legend_->setStyleSheet(QString("background-color: %1; color: black; padding: 3px 8px;")
                               .arg(ToQt(drawing_colour::kCell).name()));
    legend_->setTextFormat(Qt::RichText);
    legend_->setWordWrap(true);
    ScrX->setAccessibleName("First column shown");
    ScrY->setAccessibleName("First row shown");
    setFocusProxy(view_);
    StayOnEscape();
    ConnectView();
    ShowState();
}

QScrollBar* FrmCel::Bar(const char* name, Qt::Orientation orientation) {
    auto* bar = Named(new QScrollBar(orientation), name);
    bar->setRange(1, LastScroll(program_.project));
    bar->setPageStep(program_.project.GridSize / 2);
    bar->setFocusPolicy(Qt::NoFocus);  // the whole grid is in sight; a bar does not show its focus
    connect(bar, &QScrollBar::valueChanged, this, [this] { Scrolled(); });
    return bar;
}

void FrmCel::ConnectView() {
    view_->press = [this](int place, MouseButton button, HeldKey held) {
        PressMouse(place, button, held);
    };
    view_->drop = [this](int place, HeldKey held) { Drop(place, held); };
    view_->hover = [this](int place) { ShowPlace(place); };
    view_->moveCursor = [this](int place) { scene_->ShowCursor(place); };
    view_->abort = [this] { Abort(); };
    view_->turnPump = [this] {
        TurnSelectedPump(program_.project, program_.editor);
        program_.changed();
    };
    view_->remove = [this] {
        DeleteSelected(program_.project, program_.editor, program_.boxes, program_.changed);
        program_.changed();
    };
    view_->tip = [this](int place) { return TipOf(place); };
    // Zoomed, the view has bars of its own at their place.
    view_->zoomed = [this] {
        ScrX->setVisible(!view_->IsZoomed());
        ScrY->setVisible(!view_->IsZoomed());
    };
}

void FrmCel::ShowState() {
    const QSignalBlocker silentX(ScrX);
    const QSignalBlocker silentY(ScrY);
    ScrX->setValue(program_.editor.ScrX);
    ScrY->setValue(program_.editor.ScrY);
    DrawingList drawing;
    DrawPlant(program_.project, program_.editor, drawing);
    DrawBegunPipe(program_.project, program_.editor, HoverCell, drawing);
    scene_->Show(std::move(drawing));
    ShowLegend();
    RevealSelection();
}

void FrmCel::ShowLegend() {
    const Legend legend = LegendOf(program_.project, program_.editor);
    legend_->setVisible(legend != Legend{});
    const QString text = LegendText(legend);
    if (text != legend_->text()) legend_->setText(text);
}

/// What was selected elsewhere may lie beside the part that is shown.
void FrmCel::RevealSelection() {
    const Project& project = program_.project;
    const Editor& editor = program_.editor;
    const std::pair selected(project.CurrentPipe, editor.selectedComponent);
    if (std::exchange(revealed_, selected) == selected) return;
    const auto at = [](ScreenPoint point) { return QPointF(point.x, point.y); };
    if (selected.first != 0) {
        const auto part = ShownPart(project, editor, project.Pipes[selected.first]);
        if (part) view_->Reveal(QRectF(at(part->from), at(part->to)).normalized());
    } else if (selected.second != 0) {
        const QPointF centre = at(Shown(project, editor, CellCentre(project, selected.second)));
        view_->Reveal({centre, QSizeF()});
    }
}

void FrmCel::PressMouse(int place, MouseButton button, HeldKey held) {
    const bool begun = program_.editor.state == InsertState::EndPoint;
    CellClick(program_.project, program_.editor, place, button, program_.boxes, held);
    isBegunByPress_ = !begun && program_.editor.state == InsertState::EndPoint;
    program_.changed();
}

void FrmCel::Drop(int place, HeldKey held) {
    if (isBegunByPress_ && program_.editor.state == InsertState::EndPoint) {
        PressMouse(place, MouseButton::Left, held);
    }
}

QString FrmCel::TipOf(int place) const {
    const Project& project = program_.project;
    const int cell = CellShownAt(project, program_.editor, place);
    if (cell == 0) return {};
    std::string text = HoverText(project, cell);
    const int pipe = PipeUnder(project, cell);
    const auto run = program_.records.find(WorkMode::Graphic);
    if (pipe != 0 && run != program_.records.end() && run->second.results) {
        const WorkNetwork& results = *run->second.results;
        const PipeRec& computed = results.WorkPipes[pipe];
        if (pipe <= results.WorkPipeCount && computed.IsDrawn()) {
            const PipeResult found = ResultOfPipe(run->second.settings, results, pipe);
            text += "\n" + HoverFlow(found.flow, found.velocity);
            if (program_.editor.resultsOld) text += " (changed since the computation)";
        }
    }
    return ToQt(text);
}

bool FrmCel::focusNextPrevChild(bool next) {
    program_.switchFocus(!next);
    return true;
}

void FrmCel::Scrolled() {
    ScrollDrawing(program_.project, program_.editor, ScrX->value(), ScrY->value());
    program_.changed();
}

void FrmCel::Abort() {
    AbortByKey(program_.editor);
    program_.changed();
}

void FrmCel::ShowPlace(int place) {
    const int cell = CellShownAt(program_.project, program_.editor, place);
    if (cell == HoverCell) return;
    HoverCell = cell;
    if (program_.editor.state == InsertState::EndPoint) ShowState();
    const int size = program_.project.GridSize;
    const QString tip = cell == 0 ? QString()
                                  : QString("Column %1, row %2 (cell %3)")
                                        .arg((cell - 1) % size + 1)
                                        .arg((cell - 1) / size + 1)
                                        .arg(cell);
    QStatusTipEvent told(tip);
    QApplication::sendEvent(this, &told);
}

}  // namespace idrova

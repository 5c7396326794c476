// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_ris.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTabWidget>
#include <QVBoxLayout>

#include "results/limit_notes.h"
#include "results/report.h"
#include "shell/outcome_notes.h"
#include "ui/kit/coloured_field.h"
#include "ui/kit/controls.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"
#include "ui/program_selection.h"
#include "ui/windows/result_view.h"

namespace idrova {

namespace {

constexpr std::array<const char*, 3> kTabs = {"Pipes", "Points", "Components"};

QString StateText(const RunRecord* record, const Limits& limits, bool old) {
    if (record == nullptr) return "Not computed yet";
    return ToQt(
        ShowOutcome(HeldAgainst(limits, *record), old ? ResultAge::OutOfDate : ResultAge::Current)
            .text);
}

}  // namespace

FrmRis::FrmRis(Program& program)
    : ChildWindow("FrmRis", "Idrova - Results"),
      program_(program),
      state_(Named(PlainLabel({}), "ResultState")),
      filter_(TextField("Filter")),
      tabs_(Named(new QTabWidget, "ResultTabs")),
      report_(Named(new QPlainTextEdit, "Report")) {
    LayOut();
    for (Tab& tab : tables_) {
        connect(filter_, &QLineEdit::textChanged, tab.view,
                [&tab](const QString& text) { tab.view->Filter(text); });
        connect(tab.view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this, &tab] { Select(tab); });
    }
    FrmRis::ShowState();
    setFocusProxy(tables_.front().view);
}

void FrmRis::LayOut() {
    filter_->setPlaceholderText("rows with this text");
    filter_->setClearButtonEnabled(true);
    filter_->setMaximumWidth(240);
    report_->setReadOnly(true);
    report_->setLineWrapMode(QPlainTextEdit::NoWrap);
    report_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    report_->setAccessibleName("Report");
    for (std::size_t i = 0; i < tables_.size(); ++i) {
        tables_[i].view = new ResultView(kTabs[i], tables_[i].model);
        tabs_->addTab(tables_[i].view, kTabs[i]);
    }
    tabs_->addTab(report_, "Report");
    auto* head = new QHBoxLayout;
    head->addWidget(state_, 1);
    head->addWidget(LabelFor(filter_, "Filter"));
    head->addWidget(filter_, 1);
    auto* column = new QVBoxLayout(this);
    column->addLayout(head);
    column->addWidget(tabs_);
}

void FrmRis::ShowState() {
    const QScopedValueRollback shows(showsSelection_, true);
    ShowTables();
    ShowReport();
    ShowSelection();
}

void FrmRis::ShowTables() {
    const RunRecord* record = RecordOf(program_);
    const bool old = ResultsAreOld(program_);
    state_->setText(StateText(record, program_.limits, old));
    if (record == nullptr || !record->results) {
        for (Tab& tab : tables_) tab.model.Show({}, old);
        return;
    }
    const WorkNetwork& results = *record->results;
    const Settings& settings = record->settings;
    ResultTable pipes = PipeTable(settings, results);
    ResultTable points = PointTable(settings, results, program_.project.settings.PressureUnit);
    for (ResultTable* table : {&pipes, &points}) MarkBeyond(program_.limits, *table);
    tables_[0].model.Show(std::move(pipes), old);
    tables_[1].model.Show(std::move(points), old);
    tables_[2].model.Show(ComponentTable(results), old);
}

void FrmRis::ShowReport() {
    const RunRecord* record = RecordOf(program_);
    QString report;
    if (record != nullptr && record->results) {
        report = ToQt(ReportText(record->settings, program_.project.ProjectName, *record->results,
                                 record->time))
                     .remove('\r');
    }
    if (report != report_->toPlainText()) report_->setPlainText(report);
    QPalette shown = palette();
    if (ShowsOldResults(program_)) {
        shown.setColor(QPalette::Text,
                       OldResultColour(shown.color(QPalette::Text), shown.color(QPalette::Base)));
    }
    report_->setPalette(shown);
}

void FrmRis::ShowSelection() {
    for (const Tab& tab : tables_) {
        if (!IsShownBeside(program_, tab.model.About())) continue;
        const NoteOn about = tab.model.About();
        const std::vector<int> shown = tab.view->SelectedNumbers();
        const std::vector<int> wanted = about == NoteOn::Pipe
                                            ? SelectedPipes(program_)
                                            : std::vector{SelectedNumber(program_, about)};
        // A point is shown by a pipe that ends there: either end of it may have been meant.
        const bool one = shown.size() == 1 && wanted.size() == 1;
        if (shown == wanted || (one && IsSelected(program_, {about, shown.front()}))) continue;
        tab.view->SelectNumbers(wanted);
    }
}

void FrmRis::Select(const Tab& tab) {
    const std::vector<int> numbers = tab.view->SelectedNumbers();
    if (showsSelection_ || numbers.empty() || !IsShownBeside(program_, tab.model.About())) return;
    if (numbers.size() == 1) {
        SelectElement(program_, {tab.model.About(), numbers.front()});
    } else if (tab.model.About() == NoteOn::Pipe &&
               program_.project.settings.Mode == WorkMode::Graphic) {
        SelectPipes(program_, numbers);
    } else {
        return;
    }
    program_.changed();
}

}  // namespace idrova

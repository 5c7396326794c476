// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_file.h"

#include <QComboBox>
#include <QDir>
#include <QFormLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

#include "projectfile/messages.h"
#include "ui/kit/coloured_field.h"
#include "ui/kit/controls.h"
#include "ui/kit/drives.h"
#include "ui/kit/form_parts.h"
#include "ui/kit/qt_text.h"
#include "ui/program.h"

namespace idrova {

namespace {

constexpr const char* kParentFolder = "..";

/// Return opens the folder and stays in the list: it does not confirm the form as well.
class FolderList final : public QListWidget {
  protected:
    void keyPressEvent(QKeyEvent* event) override {
        QListWidget::keyPressEvent(event);
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) event->accept();
    }
};

/// Writes a text without taking it for the user's.
void ShowText(QLineEdit& field, const std::string& text) {
    const QSignalBlocker quiet(field);
    if (field.text() != ToQt(text)) field.setText(ToQt(text));
}

}  // namespace

FrmFile::FrmFile(Program& program, FilePurpose purpose, Confirm confirm)
    : ChildWindow("FrmFile", ToQt(FileFormCaption(purpose))),
      program_(program),
      confirm_(std::move(confirm)),
      form_(StartFileForm(purpose, NearestFolder(program.lastFolder), program.project)),
      drive_(Named(new QComboBox, "Drive1")),
      folders_(Named<QListWidget>(new FolderList, "Dir1")),
      files_(Named(new QListWidget, "File1")),
      filter_(TextField("Text1")),
      path_(new ComputedField("Text2")),
      name_(TextField("Text3")),
      description_(TextField("Text4")) {
    auto* column = new QVBoxLayout(this);
    column->addWidget(MakeLists(), 1);
    column->addWidget(MakeFields());
    column->addWidget(MakeButtons());
    FillDrives();
    ShowFolder();
    ShowForm();
    ConnectControls();
    setFocusProxy(name_);
    resize(620, 520);
}

QWidget* FrmFile::MakeLists() {
    auto* lists = new QWidget;
    auto* grid = new QGridLayout(lists);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(LabelFor(drive_, "Drive:"), 0, 0);
    grid->addWidget(drive_, 1, 0);
    grid->addWidget(LabelFor(folders_, "Folder:"), 2, 0);
    grid->addWidget(folders_, 3, 0);
    grid->addWidget(LabelFor(files_, "Files:"), 0, 1);
    grid->addWidget(files_, 1, 1, 3, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return lists;
}

QWidget* FrmFile::MakeFields() {
    auto* fields = new QWidget;
    auto* form = new QFormLayout(fields);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(LabelFor(filter_, "File type:"), filter_);
    form->addRow(LabelFor(name_, "File name:"), name_);
    form->addRow(LabelFor(path_, "Full path:"), path_);
    form->addRow(LabelFor(description_, "Description:"), description_);
    return fields;
}

QWidget* FrmFile::MakeButtons() {
    auto* buttons = new QWidget;
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch(1);
    const bool saving = form_.purpose == FilePurpose::Save;
    auto* confirm = Named(new QPushButton(saving ? "Save" : "Open"), "Command1");
    auto* exit = Named(new QPushButton("Exit"), "Command2");
    for (QPushButton* button : {confirm, exit}) row->addWidget(button);
    SetDefaultButton(confirm);
    KeepReturnIn(folders_);  // it enters the folder
    connect(confirm, &QPushButton::clicked, this, [this] { ConfirmForm(); });
    connect(exit, &QPushButton::clicked, this, [this] { CloseWindow(); });
    return buttons;
}

void FrmFile::FillDrives() {
    // A long path is cut: it must not widen its column.
    drive_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    drives_ = Drives({program_.folder, program_.shipped.samples});
    for (const std::string& drive : drives_) drive_->addItem(ToQt(drive));
}

void FrmFile::ConnectControls() {
    connect(drive_, &QComboBox::activated, this, [this] { DriveChosen(); });
    connect(folders_, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { FolderChosen(*item); });
    connect(filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
        TypeFilter(form_, FromQt(text));
        ShowFiles();
    });
    connect(name_, &QLineEdit::textChanged, this, [this](const QString& text) {
        TypeName(form_, FromQt(text), program_.boxes);
        ShowForm();
    });
    connect(description_, &QLineEdit::textChanged, this,
            [this](const QString& text) { form_.description = FromQt(text); });
    connect(files_, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item) { FileClicked(item->text()); });
    // Queued, so that a message box never opens inside the press of a mouse button.
    connect(
        files_, &QListWidget::itemSelectionChanged, this,
        [this] {
            for (const QListWidgetItem* item : files_->selectedItems()) {
                if (item->text() != clicked_) FileClicked(item->text());
            }
        },
        Qt::QueuedConnection);
    connect(files_, &QListWidget::itemDoubleClicked, this, [this](const QListWidgetItem* item) {
        DoubleClickFile(form_, FromQt(item->text()));
        ShowForm();
    });
}

void FrmFile::ShowForm() {
    ShowText(*filter_, form_.filter);
    ShowText(*path_, form_.path);
    ShowText(*name_, form_.name);
    ShowText(*description_, form_.description);
}

void FrmFile::ShowFolder() {
    const QDir folder(ToQt(form_.folder));
    folders_->clear();
    if (!folder.isRoot()) folders_->addItem(kParentFolder);
    folders_->addItems(
        folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase));
    folders_->setToolTip(ToQt(form_.folder));
    drive_->setCurrentText(ToQt(DriveOf(form_.folder, drives_)));
    ShowFiles();
}

void FrmFile::ShowFiles() {
    const QSignalBlocker quiet(files_);
    const bool all = form_.pattern.empty() || form_.pattern == "*.*";
    clicked_.clear();
    files_->clear();
    files_->addItems(QDir(ToQt(form_.folder))
                         .entryList({all ? QString("*") : ToQt(form_.pattern)}, QDir::Files,
                                    QDir::Name | QDir::IgnoreCase));
}

void FrmFile::DriveChosen() {
    GoTo(PathFromQt(drive_->currentText()));
}

void FrmFile::FolderChosen(const QListWidgetItem& item) {
    const std::filesystem::path folder = form_.folder;
    if (item.text() == kParentFolder) {
        GoTo(NearestFolder(folder.parent_path()));
    } else {
        GoTo(folder / PathFromQt(item.text()));
    }
}

void FrmFile::GoTo(const std::filesystem::path& folder) {
    if (QDir(PathToQt(folder)).isReadable()) {
        ChooseFolder(form_, folder);
    } else {
        program_.boxes.Show(FolderUnreadable(folder.string()));
    }
    ShowFolder();
    ShowForm();
}

void FrmFile::FileClicked(const QString& name) {
    clicked_ = name;
    ClickFile(form_, FromQt(name), program_.boxes);
    ShowForm();
}

void FrmFile::ConfirmForm() {
    if (confirm_(form_)) CloseWindow();
}

}  // namespace idrova

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
      Drive1(Named(new QComboBox, "Drive1")),
      Dir1(Named<QListWidget>(new FolderList, "Dir1")),
      File1(Named(new QListWidget, "File1")),
      Text1(TextField("Text1")),
      Text2(ComputedField("Text2")),
      Text3(TextField("Text3")),
      Text4(TextField("Text4")) {
    auto* column = new QVBoxLayout(this);
    column->addWidget(MakeLists(), 1);
    column->addWidget(MakeFields());
    column->addWidget(MakeButtons());
    FillDrives();
    ShowFolder();
    ShowForm();
    ConnectControls();
    setFocusProxy(Text3);
    resize(620, 520);
}

QWidget* FrmFile::MakeLists() {
    auto* lists = new QWidget;
    auto* grid = new QGridLayout(lists);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(LabelFor(Drive1, "Drive:"), 0, 0);
    grid->addWidget(Drive1, 1, 0);
    grid->addWidget(LabelFor(Dir1, "Folder:"), 2, 0);
    grid->addWidget(Dir1, 3, 0);
    grid->addWidget(LabelFor(File1, "Files:"), 0, 1);
    grid->addWidget(File1, 1, 1, 3, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return lists;
}

QWidget* FrmFile::MakeFields() {
    auto* fields = new QWidget;
    auto* form = new QFormLayout(fields);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(LabelFor(Text1, "File type:"), Text1);
    form->addRow(LabelFor(Text3, "File name:"), Text3);
    form->addRow(LabelFor(Text2, "Full path:"), Text2);
    form->addRow(LabelFor(Text4, "Description:"), Text4);
    return fields;
}

QWidget* FrmFile::MakeButtons() {
    auto* buttons = new QWidget;
    auto* row = new QHBoxLayout(buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch(1);
    const bool saving = form_.purpose == FilePurpose::Save;
    auto* command1 = Named(new QPushButton(saving ? "Save" : "Open"), "Command1");
    auto* command2 = Named(new QPushButton("Exit"), "Command2");
    for (QPushButton* button : {command1, command2}) row->addWidget(button);
    SetDefaultButton(command1);
    KeepReturnIn(Dir1);  // it enters the folder
    connect(command1, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(command2, &QPushButton::clicked, this, [this] { CloseWindow(); });
    return buttons;
}

void FrmFile::FillDrives() {
    for (const std::string& drive : Drives()) Drive1->addItem(ToQt(drive));
}

void FrmFile::ConnectControls() {
    connect(Drive1, &QComboBox::activated, this, [this] { Drive1_Change(); });
    connect(Dir1, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem* item) { Dir1_Change(*item); });
    connect(Text1, &QLineEdit::textChanged, this, [this](const QString& text) {
        TypeFilter(form_, FromQt(text));
        ShowFiles();
    });
    connect(Text3, &QLineEdit::textChanged, this, [this](const QString& text) {
        TypeName(form_, FromQt(text), program_.boxes);
        ShowForm();
    });
    connect(Text4, &QLineEdit::textChanged, this,
            [this](const QString& text) { form_.Text4 = FromQt(text); });
    connect(File1, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* item) { File1_Click(item->text()); });
    // Queued, so that a message box never opens inside the press of a mouse button.
    connect(
        File1, &QListWidget::itemSelectionChanged, this,
        [this] {
            for (const QListWidgetItem* item : File1->selectedItems()) {
                if (item->text() != clicked_) File1_Click(item->text());
            }
        },
        Qt::QueuedConnection);
    connect(File1, &QListWidget::itemDoubleClicked, this, [this](const QListWidgetItem* item) {
        DoubleClickFile(form_, FromQt(item->text()));
        ShowForm();
    });
}

void FrmFile::ShowForm() {
    ShowText(*Text1, form_.Text1);
    ShowText(*Text2, form_.Text2);
    ShowText(*Text3, form_.Text3);
    ShowText(*Text4, form_.Text4);
}

void FrmFile::ShowFolder() {
    const QDir folder(ToQt(form_.folder));
    Dir1->clear();
    if (!folder.isRoot()) Dir1->addItem(kParentFolder);
    Dir1->addItems(
        folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase));
    Dir1->setToolTip(ToQt(form_.folder));
    Drive1->setCurrentText(ToQt(DriveOf(form_.folder, Drives())));
    ShowFiles();
}

void FrmFile::ShowFiles() {
    const QSignalBlocker quiet(File1);
    const bool all = form_.pattern.empty() || form_.pattern == "*.*";
    clicked_.clear();
    File1->clear();
    File1->addItems(QDir(ToQt(form_.folder))
                        .entryList({all ? QString("*") : ToQt(form_.pattern)}, QDir::Files,
                                   QDir::Name | QDir::IgnoreCase));
}

void FrmFile::Drive1_Change() {
    GoTo(PathFromQt(Drive1->currentText()));
}

void FrmFile::Dir1_Change(const QListWidgetItem& item) {
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

void FrmFile::File1_Click(const QString& name) {
    clicked_ = name;
    ClickFile(form_, FromQt(name), program_.boxes);
    ShowForm();
}

void FrmFile::Command1_Click() {
    if (confirm_(form_)) CloseWindow();
}

}  // namespace idrova

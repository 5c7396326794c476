// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "projectfile/file_form.h"
#include "ui/kit/child_window.h"

class QComboBox;
class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace idrova {

struct Program;

/// The project file window: picks a folder and a file name to open or to save. The caption tells
/// for which.
class FrmFile : public ChildWindow {
  public:
    /// Opens or saves as the form says; true when the window is to close.
    using Confirm = std::function<bool(const FileForm&)>;

    /// Starts in the folder last used.
    FrmFile(Program& program, FilePurpose purpose, Confirm confirm);

    FilePurpose Purpose() const { return form_.purpose; }
    /// Reads the lists of folders and files again.
    void ShowFolder();

  private:
    QWidget* MakeLists();
    QWidget* MakeFields();
    QWidget* MakeButtons();
    void FillDrives();
    void ConnectControls();

    /// The fields as the form has them. The lists are read again only where they are out of date.
    void ShowForm();
    void ShowFiles();

    /// Shows a folder, or says that it cannot be read and stays.
    void GoTo(const std::filesystem::path& folder);

    void DriveChosen();
    void FolderChosen(const QListWidgetItem& item);
    void FileClicked(const QString& name);
    void ConfirmForm();

    Program& program_;
    Confirm confirm_;
    FileForm form_;
    std::vector<std::string> drives_;
    QString clicked_;  ///< the file of the list that the form shows
    QComboBox* drive_;
    QListWidget* folders_;
    QListWidget* files_;
    QLineEdit* filter_;
    QLineEdit* path_;
    QLineEdit* name_;
    QLineEdit* description_;
};

}  // namespace idrova

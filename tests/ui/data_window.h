// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <string>
#include <vector>

#include "main_window.h"
#include "physdata/record_db.h"

namespace idrova {

/// The main window with one of the data windows open in it.
class DataWindow : public MainWindow {
  protected:
    void Open(const char* item, const char* name) {
        Choose(item);
        window = Window(name);
        if (window == nullptr) throw std::out_of_range(name);
    }

    QString Text(const char* name) { return Child<QLineEdit>(name, window).text(); }
    QString Label(const char* name) { return Child<QLabel>(name, window).text(); }
    QComboBox& List(const char* name = "Combo1") { return Child<QComboBox>(name, window); }
    void Press(const char* name) { Child<QAbstractButton>(name, window).click(); }

    void Type(const char* name, const QString& text) {
        auto& field = Child<QLineEdit>(name, window);
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
        QTest::keyClicks(&field, text);
    }
    void TypeName(const QString& name) {
        QLineEdit& edit = *List().lineEdit();
        edit.selectAll();
        edit.insert(name);
        QTest::keyClick(&edit, Qt::Key_Tab);
    }

    QStringList Names() {
        QStringList names;
        for (int i = 0; i < List().count(); ++i) names.push_back(List().itemText(i));
        return names;
    }

    template <typename Record>
    void PutRecords(const std::vector<Record>& records) {
        RecordDb<Record> db;
        for (const Record& record : records) db = WithRecord(db, record);
        PutFile(folder / Record::kFile, EncodeRecords(db));
    }
    /// The file's records, slot 1 first.
    template <typename Record>
    std::vector<Record> StoredRecords() {
        const RecordDb<Record> db = *ReadRecords<Record>(folder.Path());
        return {db.slots.begin() + 1, db.slots.begin() + 1 + db.count};
    }

    ChildWindow* window = nullptr;
};

}  // namespace idrova

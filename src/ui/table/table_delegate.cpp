// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/table/table_delegate.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPersistentModelIndex>
#include <QTimer>
#include <utility>

#include "table/table_columns.h"
#include "ui/kit/controls.h"
#include "ui/kit/name_list.h"
#include "ui/table/table_model.h"

namespace idrova {

namespace {

const QColor kFrameColour(0xE6, 0x51, 0x00);  ///< on light and dark grounds
constexpr int kFrameWidth = 2;                ///< pixels

/// A list of sizes that opens at once, and in which nothing is chosen unless it is open: a closed
/// list takes keys and the wheel for a choice, and would write a size that nobody saw.
class OpenSizeList : public QComboBox {
  public:
    OpenSizeList(QWidget* parent, std::function<void(QWidget* list)> left)
        : QComboBox(parent), left_(std::move(left)) {
        Named(this, "Combo1");
        setAccessibleName("Nominal size");
        AddSizes(*this);
        // The list has its place over the cell only once the view has taken it.
        opening_.setSingleShot(true);
        connect(&opening_, &QTimer::timeout, this, &OpenSizeList::Open);
        // A choice is told only after the list has closed, and takes all of it away.
        closing_.setSingleShot(true);
        connect(&closing_, &QTimer::timeout, this, [this] {
            if (isVisible()) left_(this);
        });
        opening_.start(0);
    }

    void hidePopup() override {
        if (view()->isVisible()) closing_.start(0);
        QComboBox::hidePopup();
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool isText = !event->text().isEmpty() && event->text().front().isPrint();
        if (!isText) return event->ignore();
        typed_ += event->text();
        opening_.start(0);
    }
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

  private:
    void Open() {
        showPopup();
        const QString typed = std::exchange(typed_, {});
        if (!currentText().startsWith(typed)) view()->keyboardSearch(typed);
    }

    std::function<void(QWidget* list)> left_;
    QTimer opening_;
    QTimer closing_;
    QString typed_;
};

}  // namespace

void TableDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (!index.data(TableModel::kFramedRole).toBool()) return;
    painter->save();
    painter->setPen(QPen(kFrameColour, kFrameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
    painter->restore();
}

QWidget* TableDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const {
    if (index.column() != table_column::kNominalSize) {
        return QStyledItemDelegate::createEditor(parent, option, index);
    }
    auto* list = new OpenSizeList(parent, listLeft);
    connect(list, &QComboBox::activated, this,
            [this, list, cell = QPersistentModelIndex(index)](int position) {
                sizeChosen(list, cell, position);
            });
    return list;
}

void TableDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* list = qobject_cast<QComboBox*>(editor);
    if (list == nullptr) return QStyledItemDelegate::setEditorData(editor, index);
    QString size = index.data().toString();
    if (size.endsWith('"')) size.chop(1);
    list->setCurrentIndex(list->findText(size));
}

void TableDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                 const QModelIndex& index) const {
    if (qobject_cast<QComboBox*>(editor) != nullptr) return;
    QStyledItemDelegate::setModelData(editor, model, index);
}

bool TableDelegate::eventFilter(QObject* editor, QEvent* event) {
    const auto* key = dynamic_cast<QKeyEvent*>(event);
    if (key == nullptr) return QStyledItemDelegate::eventFilter(editor, event);
    // The view takes the edit at once; here it would be taken later, from an editor that is gone.
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) return false;
    if (event->type() == QEvent::KeyPress && key->text() == "," &&
        qobject_cast<QLineEdit*>(editor) != nullptr) {
        QKeyEvent period(QEvent::KeyPress, Qt::Key_Period, key->modifiers(), ".");
        QCoreApplication::sendEvent(editor, &period);
        return true;
    }
    return QStyledItemDelegate::eventFilter(editor, event);
}

}  // namespace idrova

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/qt_message_boxes.h"

#include <QApplication>
#include <QGridLayout>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSpacerItem>
#include <algorithm>

#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

QMessageBox::Icon QtIcon(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Information:
            return QMessageBox::Information;
        case BoxIcon::Exclamation:
            return QMessageBox::Warning;
        case BoxIcon::Critical:
            return QMessageBox::Critical;
        case BoxIcon::Question:
            return QMessageBox::Question;
        case BoxIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

struct QtButtons {
    QMessageBox::StandardButtons all;
    QMessageBox::StandardButton first = QMessageBox::NoButton;
    QMessageBox::StandardButton escape = QMessageBox::NoButton;
};

QtButtons ButtonsOf(BoxButtons buttons) {
    switch (buttons) {
        case BoxButtons::OkCancel:
            return {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::Cancel};
        case BoxButtons::YesNo:
            return {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No};
        case BoxButtons::Ok:
            break;
    }
    return {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
}

Answer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return Answer::Ok;
    }
}

/// Room for a text whose lines, where they have to be broken, come out equally long: none holds
/// the last word or the question mark alone.
int WidthFor(const QString& text, const QFontMetrics& font) {
    constexpr int longest = 600;
    int width = 0;
    for (const QString& line : text.split(QRegularExpression("[\r\n]"))) {
        const int whole = font.horizontalAdvance(line);
        const int parts = whole / longest + 1;
        const int word = parts > 1 ? font.horizontalAdvance("overwritten") : 1;
        width = std::max(width, whole / parts + word);
    }
    return width;
}

/// A box takes its width from its text up to a width that breaks many of them; a longer title
/// would be cut.
void MakeRoom(QMessageBox& window) {
    constexpr int frameButtons = 120;
    constexpr int iconAndMargins = 100;
    auto* grid = qobject_cast<QGridLayout*>(window.layout());
    if (grid == nullptr) return;
    const QFontMetrics font = window.fontMetrics();
    const int title = font.horizontalAdvance(window.windowTitle()) + frameButtons;
    const int text = WidthFor(window.text(), font) + iconAndMargins;
    grid->addItem(new QSpacerItem(std::max(title, text), 0), grid->rowCount(), 0, 1,
                  grid->columnCount());
}

}  // namespace

Answer QtMessageBoxes::Show(const MessageBox& box) {
    const QtButtons buttons = ButtonsOf(box.buttons);
    QMessageBox window(QtIcon(box.icon), ToQt(box.title), ToQt(box.text), buttons.all,
                       QApplication::activeWindow());
    // The text may hold names that users chose; guessed rich text would swallow parts of them.
    window.setTextFormat(Qt::PlainText);
    window.setDefaultButton(buttons.first);
    window.setEscapeButton(buttons.escape);
    MakeRoom(window);
    return AnswerOf(window.exec());
}

}  // namespace idrova

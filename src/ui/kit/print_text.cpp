// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/print_text.h"

#include <QBuffer>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextDocument>
#include <QTextOption>
#include <algorithm>
#include <cmath>

#include "base/file.h"
#include "ui/kit/messages.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

constexpr double kLargestPoints = 10;
constexpr double kSmallestPoints = 8;
constexpr double kMarginsInches = 4 / 2.54;  ///< both together, inside those of the device
constexpr QChar kNominalSizeMark = u'\x16';

/// Without the blanks at its end; at least one letter.
QString LongestLine(const QString& text) {
    qsizetype longest = 1;
    for (const QString& line : text.split('\n')) {
        longest = std::max(longest, ("x" + line).trimmed().size() - 1);
    }
    return QString(longest, 'x');
}

/// Only what no legible size fits goes on in the next line.
QTextOption WrappedAtTheEdge() {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAnywhere);
    return option;
}

/// The size at which the longest line just fits the page, as far as that can be read.
QFont FittingFont(const QString& text, QPagedPaintDevice& device) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(kLargestPoints);
    const double width = device.width() - kMarginsInches * device.logicalDpiX();
    const double needed = QFontMetricsF(font, &device).horizontalAdvance(LongestLine(text));
    const double points = std::floor(10 * kLargestPoints * width / needed) / 10;
    font.setPointSizeF(std::clamp(points, kSmallestPoints, kLargestPoints));
    return font;
}

void PrintOn(QPagedPaintDevice& device, const std::string& text) {
    QString lines = ToQt(text).remove('\r');
    lines.replace(kNominalSizeMark, ' ');  // paper would show it as an empty box
    QTextDocument document;
    document.setDefaultFont(FittingFont(lines, device));
    document.setDefaultTextOption(WrappedAtTheEdge());
    document.setPlainText(lines);
    document.print(&device);
}

/// A failure is told under the title of the printing messages.
void Tell(const Status& written, MessageBoxes& boxes) {
    if (!written) boxes.Show({written.Error(), kNoPrinter.title});
}

}  // namespace

void OfferPdf(const std::string& text, const std::filesystem::path& folder, QWidget* parent,
              MessageBoxes& boxes) {
    if (boxes.Show(kNoPrinter) != Answer::Yes) return;
    QFileDialog dialog(parent, "Print", PathToQt(folder), "PDF (*.pdf)");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("pdf");
    dialog.selectFile("results.pdf");
    if (dialog.exec() != QDialog::Accepted) return;
    Tell(WritePdf(text, PathFromQt(dialog.selectedFiles().value(0))), boxes);
}

void PrintText(const std::string& text, const std::filesystem::path& folder, QWidget* parent,
               MessageBoxes& boxes) {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) {
        OfferPdf(text, folder, parent, boxes);
        return;
    }
    QPrinter printer;
    QPrintDialog dialog(&printer, parent);
    if (dialog.exec() != QDialog::Accepted) return;
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        const auto path = PathFromQt(printer.outputFileName());
        return Tell(WritePdf(text, path, printer.pageLayout()), boxes);
    }
    PrintOn(printer, text);
    if (printer.printerState() == QPrinter::Error) boxes.Show(kPrinterFailed);
}

Status WritePdf(const std::string& text, const std::filesystem::path& path,
                const std::optional<QPageLayout>& layout) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QPageSize::A4));
        if (layout) writer.setPageLayout(*layout);
        PrintOn(writer, text);
    }
    const QByteArray& bytes = buffer.data();
    return WriteWholeFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace idrova

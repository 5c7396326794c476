// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/picture_export.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgRenderer>
#include <QTextDocument>
#include <algorithm>

#include "base/file.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

constexpr double kMarginMillimetres = 15;
constexpr double kTextScale = 0.8;  ///< the widest table fits the sheet
constexpr int kPixelsPerScreenPixel = 2;
constexpr double kLargestScale = 3;  ///< of a small drawing on a large sheet, to the screen's

Status Write(const QByteArray& bytes, const std::filesystem::path& file) {
    return WriteWholeFile(file, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

void DrawPages(const std::string& html, QPdfWriter& sheets, QPainter& painter) {
    QTextDocument document;
    document.documentLayout()->setPaintDevice(&sheets);
    document.setDocumentMargin(0);
    document.setPageSize(QSizeF(sheets.width(), sheets.height()) / kTextScale);
    document.setHtml(ToQt(html));
    const QRectF sheet(QPointF(0, 0), document.pageSize());
    for (int page = 0; page < document.pageCount(); ++page) {
        if (page > 0) sheets.newPage();
        painter.save();
        painter.scale(kTextScale, kTextScale);
        painter.translate(0, -page * sheet.height());
        document.drawContents(&painter, sheet.translated(0, page * sheet.height()));
        painter.restore();
    }
}

void DrawSheet(const std::string& drawing, const QPdfWriter& sheets, QPainter& painter) {
    QSvgRenderer picture(QByteArray::fromStdString(drawing));
    const QSizeF natural = picture.defaultSize();
    const double screen = sheets.logicalDpiX() / 96.0;
    const double scale = std::min({sheets.width() / natural.width(),
                                   sheets.height() / natural.height(), kLargestScale * screen});
    picture.render(&painter, QRectF(QPointF(0, 0), natural * scale));
}

}  // namespace

Status WritePdfReport(const std::string& html, const std::string& drawing,
                      const std::filesystem::path& file) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter sheets(&buffer);
        sheets.setPageLayout({QPageSize(QPageSize::A4), QPageLayout::Landscape,
                              QMarginsF(kMarginMillimetres, kMarginMillimetres, kMarginMillimetres,
                                        kMarginMillimetres),
                              QPageLayout::Millimeter});
        QPainter painter(&sheets);
        DrawPages(html, sheets, painter);
        if (!drawing.empty()) {
            sheets.newPage();
            DrawSheet(drawing, sheets, painter);
        }
    }
    return Write(buffer.data(), file);
}

Status WritePng(const std::string& drawing, const std::filesystem::path& file) {
    QSvgRenderer picture(QByteArray::fromStdString(drawing));
    QImage image(picture.defaultSize() * kPixelsPerScreenPixel, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    picture.render(&painter);
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) return Failure{"The picture is too large"};
    return Write(buffer.data(), file);
}

}  // namespace idrova

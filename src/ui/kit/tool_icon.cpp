// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/tool_icon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QStringList>

namespace idrova {

namespace {

constexpr int kField = 24;
constexpr double kStroke = 1.6;

QPolygonF Line(const QString& points) {
    QPolygonF line;
    for (const QString& point : points.split(' ')) {
        const QStringList xy = point.split(',');
        line.append(QPointF(xy.value(0).toDouble(), xy.value(1).toDouble()));
    }
    return line;
}

QPixmap Painted(const QString& strokes, QPalette::ColorGroup group, int side) {
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(double(side) / kField, double(side) / kField);
    const QColor colour = QGuiApplication::palette().color(group, QPalette::WindowText);
    painter.setPen(QPen(colour, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const QString& stroke : strokes.split(';')) painter.drawPolyline(Line(stroke));
    return picture;
}

}  // namespace

QIcon ToolIcon(const char* themeName, const QString& strokes) {
    QIcon icon;
    for (const int side : {kField, 2 * kField}) {
        icon.addPixmap(Painted(strokes, QPalette::Active, side), QIcon::Normal);
        icon.addPixmap(Painted(strokes, QPalette::Disabled, side), QIcon::Disabled);
    }
    return QIcon::fromTheme(themeName, icon);
}

}  // namespace idrova

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_warn.h"

#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>
#include <utility>

#include "shell/start_up.h"
#include "ui/kit/controls.h"
#include "ui/kit/logo_picture.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

constexpr QSize kSize(420, 260);
constexpr int kPictureSide = 160;

}  // namespace

FrmWarn::FrmWarn(int milliseconds, std::function<void()> ended)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint), ended_(std::move(ended)) {
    Named(this, "FrmWarn");
    setWindowTitle("Idrova");
    setFixedSize(kSize);
    auto* column = new QVBoxLayout(this);
    column->addWidget(Named(LogoLabel(kPictureSide), "Image1"), 1);
    for (const auto& [name, text] :
         {std::pair("Label1", QString("Idrova")), std::pair("Label2", ToQt(VersionLine()))}) {
        auto* line = Named(new QLabel(text), name);
        line->setAlignment(Qt::AlignCenter);
        column->addWidget(line);
    }
    move(screen()->availableGeometry().center() - rect().center());
    Named(&endTimer_, "Timer1");
    endTimer_.setSingleShot(true);
    connect(&endTimer_, &QTimer::timeout, this, [this] { End(); });
    endTimer_.start(milliseconds);
    show();
    activateWindow();
}

void FrmWarn::mousePressEvent(QMouseEvent* /*event*/) {
    End();
}

void FrmWarn::keyPressEvent(QKeyEvent* /*event*/) {
    End();
}

void FrmWarn::End() {
    if (!ended_) return;
    endTimer_.stop();
    hide();
    deleteLater();
    std::exchange(ended_, nullptr)();
}

}  // namespace idrova

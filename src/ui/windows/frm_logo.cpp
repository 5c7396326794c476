// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/windows/frm_logo.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "shell/start_up.h"
#include "ui/kit/controls.h"
#include "ui/kit/logo_picture.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

constexpr int kTickMilliseconds = 10;
constexpr double kStep = 100.0 / 15.0;  ///< 100 screen units, 15 to a pixel
constexpr QSize kFullSize(400, 300);
constexpr int kPictureSide = 160;

}  // namespace

FrmLogo::FrmLogo() : ChildWindow("FrmLogo", "Idrova"), content_(MakeContent()) {
    Named(&growTimer_, "Timer1");
    connect(&growTimer_, &QTimer::timeout, this, [this] { OpenFurther(); });
    growTimer_.start(kTickMilliseconds);
}

QWidget* FrmLogo::MakeContent() {
    auto* content = new QWidget(this);
    content->resize(kFullSize);
    auto* column = new QVBoxLayout(content);
    column->addWidget(Named(LogoLabel(kPictureSide), "Image1"), 1);
    for (const auto& [name, text] :
         {std::pair("Label1", ToQt(VersionLine())),
          std::pair("Label2", QString("check on our site the availablity of new versions"))}) {
        auto* line = Named(new QLabel(text), name);
        line->setAlignment(Qt::AlignCenter);
        column->addWidget(line);
    }
    auto* close = Named(new QPushButton("Exit"), "Command1");
    connect(close, &QPushButton::clicked, this, [this] { CloseWindow(); });
    SetDefaultButton(close);
    column->addWidget(close, 0, Qt::AlignCenter);
    return content;
}

void FrmLogo::OpenFurther() {
    QWidget& frame = *parentWidget();
    const QSize full = kFullSize + (frame.size() - size());
    reached_ = reached_.isEmpty() ? QSizeF(frame.size()) : reached_;
    reached_ = (reached_ + QSizeF(kStep, kStep)).boundedTo(full);
    const QSize next = reached_.toSize();
    const QPoint centre = frame.geometry().center();
    frame.resize(next);
    QRect centred = frame.geometry();
    centred.moveCenter(centre);
    frame.move(centred.topLeft());
    if (next != full) return;
    growTimer_.stop();
    frame.setFixedSize(full);
}

}  // namespace idrova

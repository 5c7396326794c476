// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/child_windows.h"

#include <QMdiSubWindow>
#include <QResizeEvent>
#include <algorithm>

#include "ui/kit/child_window.h"
#include "ui/kit/qt_text.h"

namespace idrova {

namespace {

constexpr int kReachable = 60;  ///< pixels of a frame that stay inside when the area shrinks

QPoint PulledInto(const QRect& area, const QRect& frame) {
    return {std::max(std::min(frame.x(), area.width() - kReachable), 0),
            std::max(std::min(frame.y(), area.height() - kReachable), 0)};
}

}  // namespace

ChildWindows::ChildWindows() {
    setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

ChildWindow* ChildWindows::Find(std::string_view name) const {
    for (const QMdiSubWindow* frame : subWindowList()) {
        auto* window = dynamic_cast<ChildWindow*>(frame->widget());
        // A closed window is still in the list until the event loop deletes it.
        if (window != nullptr && frame->isVisible() && window->objectName() == ToQt(name)) {
            return window;
        }
    }
    return nullptr;
}

ChildWindow* ChildWindows::Open(std::string_view name, const std::function<ChildWindow*()>& make,
                                Place place) {
    ChildWindow* window = Find(name);
    if (window == nullptr) {
        window = make();
        if (window == nullptr) return nullptr;
        QMdiSubWindow* frame = addSubWindow(window, window->FrameFlags());
        frame->setAttribute(Qt::WA_DeleteOnClose);
        // Above the window of the mode also when that is clicked.
        frame->setWindowFlag(Qt::WindowStaysOnTopHint, place == Place::Centred);
        frame->show();
        if (place == Place::FillsArea) {
            filling_ = frame;
            FillArea();
        } else {
            frame->resize(frame->size().boundedTo(viewport()->size()));
            PlaceCentred(frame);
        }
    }
    auto* frame = qobject_cast<QMdiSubWindow*>(window->parentWidget());
    if (frame->isMinimized()) frame->showNormal();
    setActiveSubWindow(frame);
    window->setFocus();
    return window;
}

void ChildWindows::ShowState() const {
    for (const QMdiSubWindow* frame : subWindowList()) {
        auto* window = dynamic_cast<ChildWindow*>(frame->widget());
        if (window != nullptr && frame->isVisible()) window->ShowState();
    }
}

void ChildWindows::Close(std::string_view name) const {
    if (ChildWindow* window = Find(name)) window->CloseWindow();
}

void ChildWindows::resizeEvent(QResizeEvent* event) {
    QMdiArea::resizeEvent(event);
    for (QMdiSubWindow* frame : subWindowList()) {
        if (frame->isMaximized()) continue;
        if (frame == filling_ && frame->geometry() == filled_) {
            FillArea();
        } else {
            frame->move(PulledInto(viewport()->rect(), frame->geometry()));
        }
    }
}

void ChildWindows::FillArea() {
    filling_->setGeometry(viewport()->rect());
    filled_ = filling_->geometry();
}

void ChildWindows::PlaceCentred(QMdiSubWindow* frame) {
    QRect centred = frame->geometry();
    centred.moveCenter(viewport()->rect().center());
    frame->move(PulledInto(viewport()->rect(), centred));
}

}  // namespace idrova

// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/kit/editor_window.h"

#ifdef IDROVA_X11_DESKTOP

#include <xcb/xcb_ewmh.h>

#include <QGuiApplication>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <memory>
#include <vector>

namespace idrova {

namespace {

using namespace std::chrono_literals;
constexpr auto kLookEvery = 50ms;
constexpr int kLooks = 200;
constexpr int kLooksForNew = 20;  ///< then an editor is taken to reuse its window

}  // namespace

/// The windows of the desktop, as its window manager lists them.
class EditorWindow::Desktop {
  public:
    explicit Desktop(xcb_connection_t* connection) {
        alive_ = xcb_ewmh_init_atoms_replies(&ewmh_, xcb_ewmh_init_atoms(connection, &ewmh_),
                                             nullptr) != 0;
        before_ = Windows();
    }
    ~Desktop() { xcb_ewmh_connection_wipe(&ewmh_); }
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// True when the window was there.
    bool BringToFront(qint64 pid, const QString& fileName, bool mayBeOld) {
        for (const xcb_window_t window : Windows()) {
            const bool isOld = std::ranges::find(before_, window) != before_.end();
            if (isOld && !mayBeOld) continue;
            const bool showsFile = Title(window).contains(fileName, Qt::CaseInsensitive);
            if (!showsFile && (isOld || Process(window) != pid)) continue;
            Maximise(window);
            return true;
        }
        return false;
    }

  private:
    qint64 Process(xcb_window_t window) {
        std::uint32_t pid = 0;
        xcb_ewmh_get_wm_pid_reply(&ewmh_, xcb_ewmh_get_wm_pid(&ewmh_, window), &pid, nullptr);
        return pid;
    }

    QString Title(xcb_window_t window) {
        xcb_ewmh_get_utf8_strings_reply_t text{};
        if (xcb_ewmh_get_wm_name_reply(&ewmh_, xcb_ewmh_get_wm_name(&ewmh_, window), &text,
                                       nullptr) == 0) {
            return {};
        }
        QString title = QString::fromUtf8(text.strings, static_cast<qsizetype>(text.strings_len));
        xcb_ewmh_get_utf8_strings_reply_wipe(&text);
        return title;
    }

    void Maximise(xcb_window_t window) {
        xcb_ewmh_request_change_wm_state(
            &ewmh_, 0, window, XCB_EWMH_WM_STATE_ADD, ewmh_._NET_WM_STATE_MAXIMIZED_HORZ,
            ewmh_._NET_WM_STATE_MAXIMIZED_VERT, XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER);
        xcb_ewmh_request_change_active_window(&ewmh_, 0, window, XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER,
                                              XCB_CURRENT_TIME, XCB_NONE);
        xcb_flush(ewmh_.connection);
    }

    std::vector<xcb_window_t> Windows() {
        xcb_ewmh_get_windows_reply_t list{};
        if (!alive_ || xcb_ewmh_get_client_list_reply(&ewmh_, xcb_ewmh_get_client_list(&ewmh_, 0),
                                                      &list, nullptr) == 0) {
            return {};
        }
        std::vector<xcb_window_t> windows(list.windows, list.windows + list.windows_len);
        xcb_ewmh_get_windows_reply_wipe(&list);
        return windows;
    }

    xcb_ewmh_connection_t ewmh_{};
    bool alive_ = false;
    std::vector<xcb_window_t> before_;
};

EditorWindow::EditorWindow() {
    if (QGuiApplication::platformName() != "xcb") return;
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 != nullptr) desktop_ = std::make_shared<Desktop>(x11->connection());
}

void EditorWindow::BringToFront(qint64 pid, const QString& fileName) const {
    if (desktop_ == nullptr) return;
    auto* timer = new QTimer(qGuiApp);
    timer->setInterval(kLookEvery);
    const auto look = [pid, fileName, timer, desktop = desktop_, looks = 0]() mutable {
        const bool found = desktop->BringToFront(pid, fileName, looks >= kLooksForNew);
        if (found || ++looks == kLooks) timer->deleteLater();
    };
    QObject::connect(timer, &QTimer::timeout, timer, look);
    timer->start();
}

}  // namespace idrova

#else

namespace idrova {

class EditorWindow::Desktop {};

EditorWindow::EditorWindow() = default;

void EditorWindow::BringToFront(qint64 /*pid*/, const QString& /*fileName*/) const {}

}  // namespace idrova

#endif

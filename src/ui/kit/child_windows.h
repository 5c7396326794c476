// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMdiArea>
#include <QPointer>
#include <QRect>
#include <functional>
#include <string_view>

namespace idrova {

class ChildWindow;

/// The area of the main window that holds the other windows; at most one of each name.
class ChildWindows : public QMdiArea {
  public:
    enum class Place { Centred, FillsArea };

    ChildWindows();

    /// The open window of this name; null when there is none.
    ChildWindow* Find(std::string_view name) const;

    /// Brings the window of this name to the front, made by `make` when it is not open. Nothing
    /// happens when `make` returns null: the window is not there yet.
    ChildWindow* Open(std::string_view name, const std::function<ChildWindow*()>& make,
                      Place place = Place::Centred);

    /// Has every open window show what has changed.
    void ShowState() const;

    void Close(std::string_view name) const;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void PlaceCentred(QMdiSubWindow* frame);
    void FillArea();

    QPointer<QMdiSubWindow> filling_;  ///< the frame that fills the area until the user moves it
    QRect filled_;
};

}  // namespace idrova

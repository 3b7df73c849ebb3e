#pragma once
#include <QPointer>
#include <QWidget>

namespace jv::ui {

// Holds a widget's screen updates back for the length of a scope, so a full
// repaint (new colours for the whole window, a list filled again) reaches
// the screen once, whole, when the scope ends. Guards nest: only the
// outermost one lets the updates go again.
class RedrawGuard {
public:
    explicit RedrawGuard(QWidget* widget) : widget_(widget), held_(widget != nullptr && widget->updatesEnabled()) {
        if (held_) widget_->setUpdatesEnabled(false);
    }
    ~RedrawGuard() {
        if (held_ && widget_) widget_->setUpdatesEnabled(true);
    }
    RedrawGuard(const RedrawGuard&) = delete;
    RedrawGuard& operator=(const RedrawGuard&) = delete;

private:
    QPointer<QWidget> widget_;
    bool held_;
};

}  // namespace jv::ui

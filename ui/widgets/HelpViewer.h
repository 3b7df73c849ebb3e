#pragma once
#include <QDialog>
#include <QString>

class QTextBrowser;

namespace jv::ui {

// The help page in a window of its own, beside the game: links inside the
// page are followed, outside links are left to the system's browser.
class HelpViewer : public QDialog {
    Q_OBJECT
public:
    explicit HelpViewer(QWidget* parent = nullptr);

    // Shows the page of a local HTML file; false when it cannot be read.
    bool Open(const QString& path);
    QTextBrowser* Browser() const { return browser_; }

private:
    QTextBrowser* browser_;
};

}  // namespace jv::ui

#include "ui/widgets/HelpViewer.h"

#include <QFileInfo>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace jv::ui {

HelpViewer::HelpViewer(QWidget* parent) : QDialog(parent) {
    setObjectName("HelpViewer");
    setWindowTitle("JarlsVakt Help");
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setModal(false);
    browser_ = new QTextBrowser(this);
    browser_->setObjectName("HelpBrowser");
    browser_->setOpenExternalLinks(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(browser_);
    resize(760, 640);
}

bool HelpViewer::Open(const QString& path) {
    const QFileInfo file(path);
    if (!file.isFile() || !file.isReadable()) return false;
    browser_->setSource(QUrl::fromLocalFile(file.absoluteFilePath()));
    return true;
}

}  // namespace jv::ui

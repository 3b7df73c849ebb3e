#include "ui/widgets/FileNameDialog.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringList>

namespace jv::ui {

namespace {

// A name without a point in its file name takes the ending of the chosen
// filter, unless that is the first filter.
QString WithFilterEnding(const QString& name, const QString& chosen, const QStringList& filters) {
    if (filters.isEmpty() || chosen == filters.front() || QFileInfo(name).fileName().contains('.')) return name;
    const QRegularExpressionMatch ending = QRegularExpression(R"(\*\.(\w+))").match(chosen);
    return ending.hasMatch() ? name + "." + ending.captured(1) : name;
}

}  // namespace

QString ChooseFileName(QWidget* parent, bool save, const QString& title, const QString& folder,
                       const QString& filter) {
    QFileDialog dialog(parent, title, folder, filter);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    const QString name = dialog.selectedFiles().front();
    return save ? WithFilterEnding(name, dialog.selectedNameFilter(), dialog.nameFilters()) : name;
}

QString FileFilters(const QString& patterns, const QString& descriptions) {
    const QStringList pattern = patterns.split(";;");
    const QStringList description = descriptions.split(";;");
    QStringList filters;
    for (qsizetype i = 0; i < pattern.size(); ++i)
        filters << (i < description.size() ? description[i] : description.back()) + " (" + pattern[i] + ")";
    return filters.join(";;");
}

}  // namespace jv::ui

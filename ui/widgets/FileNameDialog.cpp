#include "ui/widgets/FileNameDialog.h"

#include <QFileDialog>

namespace jv::ui {

QString ChooseFileName(QWidget* parent, bool save, const QString& title, const QString& folder,
                       const QString& filter) {
    QFileDialog dialog(parent, title, folder, filter);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    return dialog.selectedFiles().front();
}

}  // namespace jv::ui

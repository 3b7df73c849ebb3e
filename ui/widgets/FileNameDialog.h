#pragma once
#include <QString>

class QWidget;

namespace jv::ui {

// The program's file dialog: Qt's own (the same on every desktop), opened in
// a given folder with one filter such as "Game Files (*.txt)". Saving does
// not ask about an existing file: the caller asks itself. Gives the chosen
// file's full name, or "" when the dialog was cancelled.
QString ChooseFileName(QWidget* parent, bool save, const QString& title, const QString& folder,
                       const QString& filter);

}  // namespace jv::ui

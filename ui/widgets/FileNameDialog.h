#pragma once
#include <QString>

class QWidget;

namespace jv::ui {

// The program's file dialog: Qt's own (the same on every desktop), opened in
// a given folder with its filters such as "Game Files (*.txt)", several
// joined by ";;", the first one chosen at first. Saving does not ask about an
// existing file: the caller asks itself. A name typed without a point while
// saving under a filter other than the first gets that filter's ending (the
// caller adds the first filter's ending itself). Gives the chosen file's
// full name, or "" when the dialog was cancelled.
QString ChooseFileName(QWidget* parent, bool save, const QString& title, const QString& folder,
                       const QString& filter);

// The dialog's filters from the engine's patterns and descriptions, each
// joined by ";;" and paired in order: "*.txt;;*.otn" and "Game Files;;OpenTafl
// positions" give "Game Files (*.txt);;OpenTafl positions (*.otn)".
QString FileFilters(const QString& patterns, const QString& descriptions);

}  // namespace jv::ui

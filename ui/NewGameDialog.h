#pragma once
#include <QDialog>

#include "core/Game.h"
#include "session/NewGame.h"

class QComboBox;
class QLabel;

namespace jv::ui {

// Game > New Game: the rule set, its opening (the rule set's own layout until
// another is chosen) and the side the user plays. Start accepts the choice,
// Cancel leaves the game as it is.
class NewGameDialog : public QDialog {
    Q_OBJECT
public:
    explicit NewGameDialog(const Game& game, QWidget* parent = nullptr);

    GameChoice Choice() const;

private:
    // A rule set chosen: its summary shown, its openings offered, its own first.
    void ShowRules(int index);

    const Game& g_;
    QComboBox* rules_ = nullptr;
    QLabel* summary_ = nullptr;
    QComboBox* opening_ = nullptr;
    QComboBox* side_ = nullptr;
};

}  // namespace jv::ui

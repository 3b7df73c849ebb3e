#pragma once
#include <QWidget>

#include "core/Game.h"

namespace jv::ui {

// The board picture, Picture1: paints the board of the game it is given.
class BoardPicture : public QWidget {
    Q_OBJECT
public:
    explicit BoardPicture(const Game& game, QWidget* parent = nullptr);
    QSize sizeHint() const override { return {560, 560}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Game& game_;
};

}  // namespace jv::ui

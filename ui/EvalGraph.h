#pragma once
#include <QWidget>
#include <array>
#include <cstdint>
#include <vector>

namespace jv::ui {

// The review's graph: the defenders' chance of winning (0 to 1) after each
// position of the game, left to right, the defenders' side above the middle
// line in their colour and the attackers' below in theirs, the marked moves
// as dots and the shown position as an upright line; a click names the
// position under it.
class EvalGraph : public QWidget {
    Q_OBJECT
public:
    explicit EvalGraph(QWidget* parent = nullptr);

    // chances: one per position; marked: one per move after the first
    // position, true for a mistake or a blunder.
    void SetChances(std::vector<double> chances, std::vector<bool> marked);
    void SetShown(int position);
    // The colour table entries it draws with (lists, defenders, attackers,
    // King's line, move mark, victim mark).
    void SetColours(const std::array<std::int32_t, 14>& table);
    int Positions() const { return static_cast<int>(chances_.size()); }
    // The position drawn at x, -1 when none is.
    int PositionAt(int x) const;

signals:
    void PositionClicked(int position);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    double XOf(int position) const;
    std::vector<double> chances_;
    std::vector<bool> marked_;
    int shown_ = -1;
    std::array<std::int32_t, 14> colours_{};
};

}  // namespace jv::ui

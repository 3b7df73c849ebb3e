#include "ui/EditorPalette.h"

#include <QButtonGroup>
#include <QLabel>
#include <QVBoxLayout>

#include "session/LayoutEditor.h"
#include "ui/SquareSample.h"
#include "ui/widgets/PictureButton.h"

namespace jv::ui {

namespace {

static_assert(EditorPalette::Kinds[2] == EditorKingCode);

struct KindText {
    const char* name;      // objectName of the kind's button
    const char* caption;
    const char* toolTip;
    int drawCode;          // how the board draws it
};

constexpr KindText Texts[4] = {
    {"KindAttacker", "Attacker", "Place attackers: click or sweep over squares", 1},
    {"KindDefender", "Defender", "Place defenders: click or sweep over squares", 0},
    {"KindKing", "King", "Move the King: click the square he goes to", 3},
    {"KindEmpty", "Empty", "Clear squares: click or sweep over them", -1},
};

}  // namespace

EditorPalette::EditorPalette(const Game& game, QWidget* parent) : QWidget(parent), g_(game) {
    setObjectName("Picture2");
    setFixedWidth(96);
    setToolTip("Choose what to place, then click squares on the board.\nHome corners stay Home; "
               "press the editor button again to play the layout.");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 0, 4, 0);
    layout->setSpacing(2);
    auto* title = new QLabel("Place:");
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    layout->addWidget(title, 0, Qt::AlignHCenter);
    auto* group = new QButtonGroup(this);
    group->setExclusive(true);
    for (int i = 0; i < 4; ++i) {
        buttons_[i] = new PictureButton(Texts[i].toolTip);
        buttons_[i]->setObjectName(Texts[i].name);
        buttons_[i]->setCheckable(true);
        buttons_[i]->setFixedSize(64, 64);
        buttons_[i]->setProperty("kind", Kinds[i]);
        group->addButton(buttons_[i], i);
        auto* caption = new QLabel(Texts[i].caption);
        caption->setAlignment(Qt::AlignHCenter);
        layout->addSpacing(6);
        layout->addWidget(buttons_[i], 0, Qt::AlignHCenter);
        layout->addWidget(caption);
    }
    layout->addStretch(1);
    connect(group, &QButtonGroup::idClicked, this, [this](int i) { Choose(Kinds[i]); });
    Choose(AttackerCode);
}

void EditorPalette::Choose(int kind) {
    for (int i = 0; i < 4; ++i)
        if (Kinds[i] == kind) {
            kind_ = kind;
            buttons_[i]->setChecked(true);
        }
}

void EditorPalette::Paint() {
    for (int i = 0; i < 4; ++i) buttons_[i]->SetPicture(SquareSample(g_, pictures_, 1, Texts[i].drawCode, 64));
}

}  // namespace jv::ui

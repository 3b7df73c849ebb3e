#include "ui/NewGameDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>

namespace jv::ui {

namespace {

QComboBox* NamedCombo(const char* name, const QString& toolTip) {
    auto* box = new QComboBox;
    box->setObjectName(name);
    box->setToolTip(toolTip);
    return box;
}

}  // namespace

NewGameDialog::NewGameDialog(const Game& game, QWidget* parent) : QDialog(parent), g_(game) {
    setObjectName("NewGameDialog");
    setWindowTitle("New Game");
    rules_ = NamedCombo("NewGameRules", "The rules of the new game");
    for (const Rules& rules : RuleSets()) rules_->addItem(QString::fromUtf8(rules.Name.data(), rules.Name.size()));
    summary_ = new QLabel;
    summary_->setObjectName("NewGameSummary");
    summary_->setWordWrap(true);
    summary_->setMinimumWidth(360);
    opening_ = NamedCombo("NewGameOpening", "The layout the game starts from: the rule set's own unless you choose another");
    side_ = NamedCombo("NewGameSide", "The side you move on the board; the computer plays the other");
    side_->addItems({"Defenders", "Attackers"});
    side_->setCurrentIndex(g_.Players.UserSide == AttackerCode);

    auto* buttons = new QDialogButtonBox;
    buttons->setObjectName("NewGameButtons");
    QPushButton* start = buttons->addButton("Start", QDialogButtonBox::AcceptRole);
    start->setObjectName("NewGameStart");
    start->setDefault(true);
    QPushButton* cancel = buttons->addButton("Cancel", QDialogButtonBox::RejectRole);
    cancel->setObjectName("NewGameCancel");
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* form = new QFormLayout(this);
    form->addRow("Rules:", rules_);
    form->addRow(summary_);
    form->addRow("Opening:", opening_);
    form->addRow("You play:", side_);
    form->addRow(buttons);

    connect(rules_, &QComboBox::currentIndexChanged, this, &NewGameDialog::ShowRules);
    rules_->setCurrentText(QString::fromUtf8(g_.GameRules.Name.data(), g_.GameRules.Name.size()));
    ShowRules(rules_->currentIndex());
}

void NewGameDialog::ShowRules(int index) {
    if (index < 0 || index >= static_cast<int>(RuleSets().size())) return;
    const Rules& rules = RuleSets()[static_cast<std::size_t>(index)];
    summary_->setText(QString::fromStdString(RulesSummary(rules)));
    opening_->clear();
    for (const std::string& name : OpeningsFor(g_, rules)) opening_->addItem(QString::fromStdString(name));
}

GameChoice NewGameDialog::Choice() const {
    return {rules_->currentText().toStdString(), opening_->currentText().toStdString(),
            side_->currentIndex() == 1 ? AttackerCode : DefenderCode};
}

}  // namespace jv::ui

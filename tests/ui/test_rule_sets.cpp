// Games under the rule sets in the window: the New Game dialog and what it keeps, the computer's first move,
// the squares the pointer offers and the board drawn under Tablut, and the classic
// players offered under the classic rules only.
#include "WindowFixture.h"
#include "core/Reach.h"
#include "session/NewGame.h"
#include "session/Pointer.h"
#include "ui/ColourValue.h"
#include "ui/NewGameDialog.h"

using namespace jv;
using namespace jv::uitest;

namespace {

// Chooses the rule set and the side in the dialog of Game > New Game, leaves the opening it offers and
// presses Start; returns the opening offered.
QString ChooseNewGame(StartedWindow& s, const QString& rules, int side) {
    QString opening;
    WhileOpen<ui::NewGameDialog>([&] { s.window.findChild<QAction*>("mnunewgame")->trigger(); },
                                 [&](ui::NewGameDialog* d) {
                                     d->findChild<QComboBox*>("NewGameRules")->setCurrentText(rules);
                                     opening = d->findChild<QComboBox*>("NewGameOpening")->currentText();
                                     d->findChild<QComboBox*>("NewGameSide")->setCurrentIndex(side == AttackerCode);
                                     QTest::mouseClick(d->findChild<QPushButton*>("NewGameStart"), Qt::LeftButton);
                                 });
    return opening;
}

// The first move the pointer offers a piece of side, found square by square.
Move FirstOffered(const Game& g, int side) {
    for (int col = 1; col <= g.BoardWidth; ++col)
        for (int row = 1; row <= g.BoardHeight; ++row) {
            if (g.Board(col, row) != side) continue;
            Move move{{col, row}, {}};
            ForEachSquareItem(PieceTargets(g, col, row), [&](int c, int r) {
                if (move.To.Col == -1) move.To = {c, r};
            });
            if (move.To.Col != -1) return move;
        }
    return {};
}

// A 9 by 9 Tablut board with Home letters on its corners: the King on C3 two squares from the edge above
// him, a defender on A4 beside a corner, a defender on E2 in the line of the empty throne E5.
const std::string EscapeLayout = LayoutText({"H..d....H", "...a.....", "..K......", ".........", ".d.......",
                                             ".........", "a........", ".........", "H.......H"});

}  // namespace

class TestRuleSets : public QObject {
    Q_OBJECT
private slots:
    void NewGameChoosesTheRulesAndTheSideAndTheyComeBack_data() {
        QTest::addColumn<QString>("rules");
        QTest::addColumn<int>("side");
        QTest::addColumn<QString>("opening");
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("opened");   // the computer's first moves made
        QTest::newRow("Tablut, the user's attackers first") << "Tablut" << int(AttackerCode) << "tablut.txt" << 9 << 0;
        QTest::newRow("Copenhagen, the computer's attackers first") << "Copenhagen" << int(DefenderCode)
                                                                    << "copenhagen.txt" << 11 << 1;
        QTest::newRow("Classic, the computer's defenders first") << "Classic" << int(AttackerCode) << "patf.txt" << 11
                                                                 << 1;
    }
    void NewGameChoosesTheRulesAndTheSideAndTheyComeBack() {
        // New Game offers the rule set's own opening, starts it under the rules with the user's side, the
        // computer moving first when the first move is its own; rules.cfg and players.cfg keep the choice,
        // and the next start brings it back.
        QFETCH(QString, rules);
        QFETCH(int, side);
        QFETCH(QString, opening);
        QFETCH(int, width);
        QFETCH(int, opened);
        StartedWindow s;
        s.g().Players.ThinkMillis = 200;
        QCOMPARE(ChooseNewGame(s, rules, side), opening);
        QCOMPARE(QString::fromStdString(std::string(s.g().GameRules.Name)), rules);
        QCOMPARE(std::tuple(s.g().BoardWidth, s.g().Undo.size()), std::tuple(width, std::size_t(opened)));
        QCOMPARE(s.Find<QLabel>("RulesName")->text(), "Rules: " + rules);
        QCOMPARE(s.folder.Read("rules.cfg"), "rules " + rules.toStdString() + "\r\nopening " + opening.toStdString() + "\r\n");
        QVERIFY(s.folder.Read("players.cfg").ends_with(side == AttackerCode ? "user attackers\r\n" : "user defenders\r\n"));
        ui::MainWindow again(s.folder.Path());
        QVERIFY(again.Start());
        QCOMPARE(QString::fromStdString(std::string(again.game().GameRules.Name)), rules);
        QCOMPARE(std::tuple(again.game().LayoutFile, again.game().BoardWidth, again.game().Players.UserSide),
                 std::tuple(opening.toStdString(), width, side));
    }

    void CopenhagenOpensWithTheComputersAttackersAndTheComputerAnswers() {
        // Under Copenhagen the computer's attackers move first, in a new game and after a reset, and each move
        // of the user's defenders is answered.
        StartedWindow s;
        s.g().Players.ThinkMillis = 200;
        NewGameCommand(s.g(), {"Copenhagen", "copenhagen.txt", DefenderCode});
        QCOMPARE(s.Log().at(1), std::string("  Player2 to move ..."));
        QVERIFY(s.Log().back().starts_with("  Player2 Move"));
        const Move move = FirstOffered(s.g(), DefenderCode);
        s.Drag(move.From, move.To);
        QCOMPARE(s.g().Undo.size(), 3u);
        QVERIFY(s.Log().back().starts_with("  Player2 Move"));
        s.questions.AnswerTo["Reset layout?"] = 6;
        s.Press("cmdreset");
        QCOMPARE(s.g().Undo.size(), 1u);
        QVERIFY(s.Log().back().starts_with("  Player2 Move"));
    }

    void TablutCornersAndThroneAreDrawnAndOffered() {
        // Under Tablut the corners are ordinary squares and the empty throne is drawn darker; the pointer offers
        // a corner to a defender and the squares past the throne but not the throne.
        StartedWindow s;
        s.Find("Check1")->setChecked(false);
        s.folder.Write("escape.txt", EscapeLayout);
        NewGameCommand(s.g(), {"Tablut", "escape.txt", DefenderCode});
        const QColor back = ui::ToQColor(s.g().ColourTable[2]), reach = ui::ToQColor(s.g().ColourTable[11]);
        QVERIFY(s.g().Board(1, 1) == EmptyCode && s.At(1, 1) == back);
        QVERIFY(s.At(5, 5) != back && s.At(5, 5) != reach);
        s.Send(QEvent::MouseButtonPress, 5, 2, Qt::LeftButton);
        QVERIFY(s.At(5, 4) == reach && s.At(5, 5) != reach && s.At(5, 6) == reach);
        s.Send(QEvent::MouseButtonRelease, 9, 9, Qt::NoButton);
        s.Send(QEvent::MouseButtonPress, 1, 4, Qt::LeftButton);
        QCOMPARE(s.At(1, 1), reach);
    }

    void TheClassicPlayersAreOfferedUnderTheClassicRulesOnly_data() {
        QTest::addColumn<QString>("rules");
        for (const Rules& rules : RuleSets()) QTest::newRow(rules.Name.data()) << QString::fromUtf8(rules.Name.data());
    }
    void TheClassicPlayersAreOfferedUnderTheClassicRulesOnly() {
        // Under a rule set other than the classic one both players show "Strong", Classic is not offered (Strong
        // and Engine are), the tool tip saying why, the classic players' step buttons are off, and a thinking time
        // chosen there leaves the classic choice kept in players.cfg as it was.
        QFETCH(QString, rules);
        const bool classic = rules == "Classic";
        StartedWindow s;
        s.Find("Check1")->setChecked(false);
        NewGameCommand(s.g(), {rules.toStdString(), std::string(FindRules(rules.toStdString())->Layout), DefenderCode});
        for (const char* name : {"AttackerPlayer", "DefenderPlayer"}) {
            auto* box = s.Find<QComboBox>(name);
            QCOMPARE(box->currentText(), QString(classic ? "Classic" : "Strong"));
            const auto* model = qobject_cast<QStandardItemModel*>(box->model());
            QCOMPARE(std::pair(model->item(0)->isEnabled(), model->item(2)->isEnabled()), std::pair(classic, true));
            QCOMPARE(box->toolTip().endsWith("which knows the Classic rules only"), !classic);
        }
        QCOMPARE(s.Find("cmdGetAttackerRank")->isEnabled(), classic);
        QTest::keyClick(s.Find<QComboBox>("ThinkingTime"), Qt::Key_Down);
        QVERIFY(s.folder.Read("players.cfg").starts_with("attackers classic\r\ndefenders classic\r\nthink 3000\r\n"));
    }
};

WINDOW_TEST_MAIN(TestRuleSets)
#include "test_rule_sets.moc"

// The move list panel in the window: Game > Review game... scores the game on a worker thread and draws its
// graph; Stop ends a review at once.

#include "WindowFixture.h"
#include "ui/EvalGraph.h"
#include "ui/MoveListPanel.h"

using namespace jv;
using namespace jv::uitest;

class TestReviewWindow : public QObject {
    Q_OBJECT
private slots:
    void TheReviewFillsTheGraphOrStopsAtOnce_data() {
        QTest::addColumn<int>("depth");
        QTest::addColumn<bool>("stop");
        QTest::newRow("reviewed to the end") << 2 << false;
        QTest::newRow("stopped") << 64 << true;
    }
    void TheReviewFillsTheGraphOrStopsAtOnce() {
        // A review scores the start and the position after each move into the graph; Stop ends it promptly.
        QFETCH(int, depth);
        QFETCH(bool, stop);
        Started<> s;
        s.folder.Write("game.otg", "[rules:dim:7 surf:n tfr:i ks:c start:/3t3/3t3/3T3/ttTKTtt/3T3/3t3/3t3/]\n\n"
                                   "1. d2-e2 c4-c5\n");
        s.NextFile = "game.otg";
        s.Press("cmdload");
        auto* panel = s.Find<ui::MoveListPanel>("MoveListPanel");
        panel->RefreshNow();
        QCOMPARE(s.Find<QTableWidget>("MoveList")->item(0, 1)->text(), QString("D3-C3"));
        panel->ReviewLimits.MaxDepth = depth;
        panel->ReviewLimits.Millis = 0;
        s.window.findChild<QAction*>("mnureviewgame")->trigger();
        QVERIFY(panel->Reviewing());
        if (stop) s.Press("cmdstopreview");
        QTRY_VERIFY_WITH_TIMEOUT(!panel->Reviewing(), 10000);
        const int drawn = s.Find<ui::EvalGraph>("EvalGraph")->Positions();
        if (stop) QVERIFY2(drawn < 3, "a stopped review scored every position");
        else QCOMPARE(drawn, 3);
        QVERIFY(!s.Find<QWidget>("cmdstopreview")->isVisible());
    }
};

WINDOW_TEST_MAIN(TestReviewWindow)
#include "test_review_window.moc"

// The main window's place: within a small screen, the board given the room first, the move list shown,
// every tab's caption whole, and the size and place it was left at kept for the next start.
#include "WindowFixture.h"

using namespace jv;

class TestWindowPlace : public QObject {
    Q_OBJECT
private slots:
    void OpensWithinASmallScreenTheBoardFirstEveryCaptionWhole() {
        // On a 900x600 screen the window opens inside the available area, the board a third wider than each
        // side column, the move list and its graph shown, and every tab shows its whole caption unscrolled.
        const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
        QCOMPARE(area.size(), QSize(900, 600));
        uitest::StartedWindow s;
        QVERIFY2(area.contains(s.window.frameGeometry()), "the window reaches beyond the screen");
        auto* tabs = s.Find<QTabWidget>("ListTabs");
        const int side = std::max(tabs->width(), s.Find<QWidget>("CommandScroll")->width());
        QVERIFY2(s.Board()->width() > side * 4 / 3, "the board is not the widest column by far");
        QVERIFY(s.Find<QWidget>("MoveList")->isVisible() && s.Find<QWidget>("EvalGraph")->isVisible());
        for (const QTabWidget* tabbed : {tabs, s.Find<QTabWidget>("RecordTabs")}) {
            const QTabBar* bar = tabbed->tabBar();
            for (int i = 0; i < tabbed->count(); ++i)
                QVERIFY2(bar->tabRect(i).width() > bar->fontMetrics().horizontalAdvance(tabbed->tabText(i)) &&
                             bar->tabRect(i).right() < bar->width(),
                         qPrintable(tabbed->tabText(i)));
        }
    }

    void ComesBackWhereItWasLeftABrokenFileIgnored() {
        // Closed and started again, the window has the size and place it was left at; a broken window.cfg
        // gives the first start's place.
        uitest::ProgramFolder folder;
        const QRect left(20, 30, 860, 500);
        QRect first;
        {
            ui::MainWindow window(folder.Path());
            first = window.geometry();
            window.Start();
            window.show();
            window.setGeometry(left);
            QTRY_COMPARE(window.geometry(), left);
            window.close();
        }
        QCOMPARE(ui::MainWindow(folder.Path()).geometry(), left);
        folder.Write("window.cfg", "20 30 wide 500 0\r\n");
        QCOMPARE(ui::MainWindow(folder.Path()).geometry(), first);
    }
};

WINDOW_TEST_MAIN(TestWindowPlace)
#include "test_window_place.moc"

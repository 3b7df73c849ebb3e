// The main window's place: within a small screen, the board given the room first, every reasoning tab's
// caption whole, and the size and place it was left at kept for the next start.
#include "WindowFixture.h"

using namespace jv;

class TestWindowPlace : public QObject {
    Q_OBJECT
private slots:
    void OpensWithinASmallScreenTheBoardFirstEveryCaptionWhole() {
        // On a 900x600 screen the window opens inside the available area, the board wider than each side
        // column, and every tab shows its whole caption without scroll arrows.
        const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
        QCOMPARE(area.size(), QSize(900, 600));
        uitest::StartedWindow s;
        QVERIFY2(area.contains(s.window.frameGeometry()), "the window reaches beyond the screen");
        auto* tabs = s.Find<QTabWidget>("ListTabs");
        QVERIFY(s.Board()->width() > tabs->width() && s.Board()->width() > s.Find<QWidget>("CommandScroll")->width());
        const QTabBar* bar = tabs->tabBar();
        for (int i = 0; i < tabs->count(); ++i)
            QVERIFY2(bar->tabRect(i).width() > bar->fontMetrics().horizontalAdvance(tabs->tabText(i)) &&
                         bar->tabRect(i).right() < bar->width(),
                     qPrintable(tabs->tabText(i)));
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

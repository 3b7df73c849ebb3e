// The options dialog, Form2, opened from the Options menu of the real window: Apply, Default and Exit, what
// survives a restart, and its colour picker's sliders.
#include "WindowFixture.h"
#include "session/Session.h"
#include "records/Configuration.h"
#include "ui/ColourValue.h"
#include "ui/Form2.h"
#include "ui/widgets/ColourPicker.h"

using namespace jv;
using namespace jv::uitest;
using jv::ui::ColourPicker;

namespace {

const QColor Magenta(255, 0, 255);

// The dialog as the user meets it: opened from the menu, driven while it is open, and closed by Exit if
// the steps left it open.
struct Options : StartedWindow {
    ui::Form2* form = nullptr;

    void Open(const std::function<void()>& steps) {
        const auto answer = [&](ui::Form2* opened) {
            form = opened, steps();
            if (form->isVisible()) Press("Command2");
        };
        WhileOpen<ui::Form2>([&] { Find<QAction>("mnuoptions")->trigger(); }, answer);
    }
    template <typename T>
    T* Control(const char* name) { return form->findChild<T*>(name); }
    void Press(const char* name) { QTest::mouseClick(Control<QAbstractButton>(name), Qt::LeftButton); }
    void ChooseFile(const QString& name) {
        auto* list = Control<QListWidget>("File1");
        const auto items = list->findItems(name, Qt::MatchExactly);
        QVERIFY2(!items.isEmpty(), qPrintable(name));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(items.front()).center());
    }
    void ChooseScheme(const QString& name) { Control<QComboBox>("Combo1")->setCurrentText(name); }
    // What the exit command writes.
    std::string Configuration() {
        WriteConfiguration(window.game(), ConfigurationFile);
        return folder.Read(ConfigurationFile);
    }
};

}  // namespace

class TestOptionsDialog : public QObject {
    Q_OBJECT
private slots:
    void EachGridStyleSaysWhatItsSampleDraws() {
        // Each grid style's tool tip names what its sample shows down the middle of a square: white before the
        // grid colour is a raised square, the grid colour first a sunken one, no white flat squares in a grid.
        StartedWindow s;
        ui::Form2 form(s.g(), &s.window);
        const QColor grid = ui::ToQColor(s.g().ColourTable[4]);
        for (const auto* button : form.findChildren<QRadioButton*>(QRegularExpression("Option3_"))) {
            const QImage sample = button->icon().pixmap(button->iconSize()).toImage();
            QString edges;   // down the middle of the first squares: w white, g the grid colour
            for (int y = 0; y < sample.height(); ++y)
                if (const QColor c = sample.pixelColor(sample.width() / 4, y); c == Qt::white || c == grid)
                    edges += c == Qt::white ? "w" : "g";
            const char* drawn = !edges.contains('w') ? "flat squares in a grid" : edges[0] == 'w' ? "raised" : "sunken";
            QVERIFY2(button->toolTip().contains(drawn), qPrintable(button->text() + ": " + button->toolTip()));
        }
    }

    void SymbolsWithAChosenPictureDrawThatPicture() {
        // A picture chosen for the Computer's symbol and applied draws the attackers at once and next run.
        Options s;
        QImage picture(32, 32, QImage::Format_RGB32);
        picture.fill(Magenta);
        picture.setPixelColor(0, 0, Qt::white);   // a bitmap's top-left colour is drawn transparent
        picture.save(QString::fromStdString(s.folder.File("magenta.bmp")), "BMP");
        s.Open([&] {
            s.Press("Image1");
            s.ChooseFile("magenta.bmp");
            s.Press("Option2");
            QVERIFY(s.At(1, 6) != Magenta);   // A6 holds an attacker; nothing changes before Apply
            s.Press("Command1");
            QCOMPARE(s.At(1, 6), Magenta);
            QVERIFY(s.At(6, 6) != Magenta);
        });
        QCOMPARE(s.window.game().PictureFiles[1], std::string("magenta.bmp"));
        QVERIFY(s.Configuration().find("\r\nmagenta.bmp\r\n") != std::string::npos);
        ui::MainWindow again(s.folder.Path());
        again.Start();
        again.show();   // the board is drawn at its first paint
        QVERIFY(QTest::qWaitForWindowExposed(&again));
        QCOMPARE(again.Board()->Pixmap().toImage().pixelColor(again.Board()->SquareCentre(1, 6)), Magenta);
    }

    void DefaultThenApplyGivesTheDefaultConfiguration() {
        // Default then Apply, after every option changed, brings back the default look and configuration.
        Options s;
        s.Open([&] {
            s.ChooseScheme("wood");
            for (const char* name : {"Option3_1", "Check1", "Image3"}) s.Press(name);
            s.ChooseFile("king1.ico");
            s.Control<ColourPicker>("ColPik1")->Slider(0)->setValue(200);
            for (const char* name : {"cmdadjust4", "Command1"}) s.Press(name);
        });
        Game& g = s.window.game();
        QVERIFY(std::tie(g.SchemeFile, g.BoardStyle, g.ShowLabels, g.PictureFiles[3]) ==
                std::tuple("wood.col", 1, 0, "king1.ico"));
        QCOMPARE(s.Find<QPushButton>("cmdload")->palette().color(QPalette::Button), QColor(200, 0, 0));
        s.Open([&] {
            s.Press("Reset");
            QCOMPARE(s.Control<QComboBox>("Combo1")->currentText(), QString("xp"));
            QVERIFY(s.Control<QRadioButton>("Option3_0")->isChecked());
            QCOMPARE(s.Control<QLabel>("Image1L")->palette().color(QPalette::Window), QColor(128, 0, 0));
            s.Press("Command1");
        });
        QCOMPARE(g.ColourTable[2], ui::FromQColor(QColor(190, 206, 223)));   // xp's board colour, loaded
        QCOMPARE(s.Find<QPushButton>("cmdload")->palette().color(QPalette::Button), QColor(241, 239, 226));
        QCOMPARE(s.Configuration(), std::string("xp.col\r\npatf.txt\r\nplayer00.ico\r\nplayer10.ico\r\nhome0.ico\r\n"
                                                "king0.ico\r\n32768 128 8421504 0\r\n0 1 1 0 0\r\n"));
    }

    void ExitChangesNothing() {
        // Exit leaves the settings, the window and the board as they were, whatever the controls show.
        Options s;
        const Game before = s.window.game();
        const QImage board = s.window.Board()->Pixmap().toImage();
        s.Open([&] {
            s.ChooseScheme("contrast");
            for (const char* name : {"Option3_2", "Check1", "Option1", "Image2"}) s.Press(name);
            s.Control<ColourPicker>("ColPik1")->Slider(2)->setValue(255);
            s.ChooseFile("home1.ico");
            s.Press("cmdadjust4");
        });
        const auto settings = [](const Game& g) {
            return std::tie(g.SchemeFile, g.BoardStyle, g.ShowLabels, g.ColourMode, g.PictureFiles, g.PieceColours,
                            g.ColourTable);
        };
        QVERIFY(settings(s.window.game()) == settings(before));
        QCOMPARE(s.window.Board()->Pixmap().toImage(), board);
    }


    void TheSlidersMakeTheColourShown() {
        // The colour picker's sliders make the colour shown and reported; one set by the program is not reported.
        ColourPicker picker;
        picker.show();
        QSignalSpy reported(&picker, &ColourPicker::ColourChanged);
        for (int i = 0; i < 3; ++i) picker.Slider(i)->setValue(std::array{200, 64, 9}[i]);
        QTest::keyClick(picker.Slider(2), Qt::Key_Right);   // one step up with the keyboard
        QCOMPARE(picker.Preview()->palette().color(QPalette::Window), QColor(200, 64, 10));
        QCOMPARE(reported.size(), 4);
        QVERIFY(reported.front().front() == QColor(200, 0, 0) && reported.back().front() == QColor(200, 64, 10));
        picker.SetColour(QColor(1, 2, 3));
        QCOMPARE(reported.size(), 4);
        QCOMPARE(picker.Slider(1)->value(), 2);
        QCOMPARE(picker.Preview()->palette().color(QPalette::Window), QColor(1, 2, 3));
    }
};

WINDOW_TEST_MAIN(TestOptionsDialog)
#include "test_options_dialog.moc"

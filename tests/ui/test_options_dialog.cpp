// The options dialog, Form2, opened from the Options menu of the real
// window: its controls, Apply, Default and Exit, and what survives a restart.
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTimer>
#include <QtTest>
#include <functional>

#include "WindowFixture.h"
#include "session/Session.h"
#include "records/Configuration.h"
#include "ui/ColourValue.h"
#include "ui/Form2.h"
#include "ui/widgets/ColourPicker.h"
#include "ui/widgets/PictureButton.h"

using namespace jv;
using namespace jv::uitest;
using jv::ui::Form2;

namespace {

const QColor Magenta(255, 0, 255);

const std::string DefaultLines =
    "xp.col\r\npatf.txt\r\nplayer00.ico\r\nplayer10.ico\r\nhome0.ico\r\nking0.ico\r\n"
    "32768 128 8421504 0\r\n0 1 1 0 0\r\n";

// The dialog as the user meets it: opened from the menu, driven while it is
// open, and closed by Exit if the steps left it open.
struct Options : StartedWindow {
    Form2* form = nullptr;

    void Open(const std::function<void()>& steps) {
        bool ran = false;
        QTimer::singleShot(0, &window, [&] {
            form = window.findChild<Form2*>("Form2");
            if (form == nullptr) return;
            ran = true;
            steps();
            if (form->isVisible()) Press("Command2");
        });
        Find<QAction>("mnuoptions")->trigger();
        form = nullptr;
        QVERIFY(ran);
    }

    template <typename T>
    T* Control(const char* name) {
        return form->findChild<T*>(name);
    }
    void Press(const char* name) { QTest::mouseClick(Control<QAbstractButton>(name), Qt::LeftButton); }
    void ChooseFile(const QString& name) {
        auto* list = Control<QListWidget>("File1");
        const auto items = list->findItems(name, Qt::MatchExactly);
        QVERIFY2(!items.isEmpty(), qPrintable(name));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(items.front()).center());
    }
    void ChooseScheme(const QString& name) {
        auto* box = Control<QComboBox>("Combo1");
        box->setCurrentIndex(box->findText(name));
    }
    QColor At(int col, int row) {
        return window.Board()->Pixmap().toImage().pixelColor(window.Board()->SquareCentre(col, row));
    }
    // What the exit command writes.
    std::string Configuration() {
        WriteConfiguration(window.game(), ConfigurationFile);
        return folder.Read(ConfigurationFile);
    }
};

// A bitmap of a magenta square on a white ground; bitmaps lose the colour
// of their top-left pixel, so the ground is transparent.
void WriteMagentaPicture(const ProgramFolder& folder, const std::string& name) {
    QImage picture(32, 32, QImage::Format_RGB32);
    picture.fill(Qt::white);
    for (int y = 2; y < 30; ++y)
        for (int x = 2; x < 30; ++x) picture.setPixelColor(x, y, Magenta);
    picture.save(QString::fromStdString(folder.File(name)), "BMP");
}

}  // namespace

class TestOptionsDialog : public QObject {
    Q_OBJECT
private slots:
    void SymbolsWithAChosenPictureDrawThatPicture();
    void DefaultThenApplyGivesTheDefaultConfiguration();
    void ExitChangesNothing();
    void TheSchemeBoxListsAllColInFileOrder();
};

void TestOptionsDialog::SymbolsWithAChosenPictureDrawThatPicture() {
    // Clicking the Computer symbol, then a file, then Apply with "Symbols" draws the attackers with that
    // picture at once; the configuration keeps it for the next run.
    Options s;
    WriteMagentaPicture(s.folder, "magenta.bmp");
    QVERIFY(s.At(1, 6) != Magenta);   // A6 holds an attacker
    s.Open([&] {
        QCOMPARE(s.Control<ui::PictureButton>("Image1")->toolTip(), QString("Click to set symbol"));
        s.Press("Image1");
        QCOMPARE(s.form->SelectedFrame(), 1);
        s.ChooseFile("magenta.bmp");
        QCOMPARE(s.Control<ui::PictureButton>("Image1")->Tag(), QString("magenta.bmp"));
        s.Press("Option2");
        QVERIFY(s.At(1, 6) != Magenta);   // nothing changes before Apply
        s.Press("Command1");
        QCOMPARE(s.At(1, 6), Magenta);
        QVERIFY(s.At(6, 6) != Magenta);
    });
    QCOMPARE(s.window.game().PictureFiles[1], std::string("magenta.bmp"));
    QCOMPARE(s.window.game().ColourMode, 0);
    QVERIFY(s.Configuration().find("\r\nmagenta.bmp\r\n") != std::string::npos);

    ui::MainWindow again(s.folder.Path());
    again.Start();
    QCOMPARE(again.game().PictureFiles[1], std::string("magenta.bmp"));
    QCOMPARE(again.Board()->Pixmap().toImage().pixelColor(again.Board()->SquareCentre(1, 6)), Magenta);
}

void TestOptionsDialog::DefaultThenApplyGivesTheDefaultConfiguration() {
    // After changing every option, Default then Apply brings the defaults back: "xp", "Sunk" (board
    // style 0), the grid letters, "Symbols" with the four default pictures, the scheme's button colour;
    // the configuration written at exit holds the default lines.
    Options s;
    s.Open([&] {
        s.ChooseScheme("wood");
        s.Press("Option3_1");
        s.Press("Check1");
        s.Press("Image3");
        s.ChooseFile("king1.ico");
        s.Control<ui::ColourPicker>("ColPik1")->Slider(0)->setValue(200);
        s.Press("cmdadjust4");
        s.Press("Command1");
    });
    Game& g = s.window.game();
    QCOMPARE(g.SchemeFile, std::string("wood.col"));
    QCOMPARE(g.BoardStyle, 1);
    QCOMPARE(g.ShowLabels, 0);
    QCOMPARE(g.PictureFiles[3], std::string("king1.ico"));
    QCOMPARE(g.ColourTable[13], 200);
    QCOMPARE(s.Find<QPushButton>("cmdload")->palette().color(QPalette::Button), QColor(200, 0, 0));

    s.Open([&] {
        s.Press("Reset");
        QCOMPARE(s.Control<QComboBox>("Combo1")->currentText(), QString("xp"));
        QVERIFY(s.Control<QRadioButton>("Option3_0")->isChecked());
        QCOMPARE(s.Control<QRadioButton>("Option3_0")->text(), QString("Sunk"));
        QCOMPARE(s.Control<QLabel>("Image1L")->palette().color(QPalette::Window), QColor(128, 0, 0));
        s.Press("Command1");
    });
    QCOMPARE(g.BoardStyle, 0);
    QCOMPARE(g.ColourTable[2], ui::FromQColor(QColor(190, 206, 223)));   // xp's board colour, loaded
    QCOMPARE(s.window.palette().color(QPalette::Window), QColor(236, 233, 216));
    QCOMPARE(s.Find<QPushButton>("cmdload")->palette().color(QPalette::Button), QColor(241, 239, 226));
    QCOMPARE(s.Configuration(), DefaultLines);
}

void TestOptionsDialog::ExitChangesNothing() {
    // Exit leaves the settings, the window and the board as they were, whatever the controls show.
    Options s;
    Game& g = s.window.game();
    const Game before = g;
    const QImage board = s.window.Board()->Pixmap().toImage();
    s.Open([&] {
        QCOMPARE(s.Control<QPushButton>("Command2")->toolTip(), QString("Exit without applying changes"));
        s.ChooseScheme("contrast");
        s.Press("Option3_2");
        s.Press("Check1");
        s.Press("Option1");
        s.Control<ui::ColourPicker>("ColPik1")->Slider(2)->setValue(255);
        s.Press("Image2");
        s.ChooseFile("home1.ico");
        s.Press("cmdadjust4");
        s.Press("Command2");
        QVERIFY(!s.form->isVisible());
    });
    QCOMPARE(g.SchemeFile, before.SchemeFile);
    QCOMPARE(g.BoardStyle, before.BoardStyle);
    QCOMPARE(g.ShowLabels, before.ShowLabels);
    QCOMPARE(g.ColourMode, before.ColourMode);
    QVERIFY(g.PictureFiles == before.PictureFiles);
    QVERIFY(g.PieceColours == before.PieceColours);
    QVERIFY(g.ColourTable == before.ColourTable);
    QCOMPARE(s.window.Board()->Pixmap().toImage(), board);
}

void TestOptionsDialog::TheSchemeBoxListsAllColInFileOrder() {
    // The scheme box lists the name of every scheme in "all.col" in file order, the one in use chosen;
    // each control carries its caption and tool tip.
    Options s;
    QStringList names;
    QFile schemes(QString::fromStdString(s.folder.File("all.col")));
    QVERIFY(schemes.open(QIODevice::ReadOnly));
    for (const QByteArray& line : schemes.readAll().split('\n'))
        if (line.contains(".col")) names << QString::fromLatin1(line.left(line.indexOf(".col")));
    QCOMPARE(names.size(), 6);
    s.Open([&] {
        auto* box = s.Control<QComboBox>("Combo1");
        QStringList listed;
        for (int i = 0; i < box->count(); ++i) listed << box->itemText(i);
        QCOMPARE(listed, names);
        QCOMPARE(box->currentText(), QString("xp"));

        const std::pair<const char*, const char*> captions[] = {
            {"Option3_0", "Sunk"},  {"Option3_1", "Raised"}, {"Option3_2", "Flat"},
            {"Check1", "Show Grid Letters"}, {"Option1", "Colours"}, {"Option2", "Symbols"},
            {"cmdadjust4", "Adjust command button colours"}, {"Command1", "Apply"},
            {"Command2", "Exit"}, {"Reset", "Default"}};
        for (const auto& [name, caption] : captions)
            QCOMPARE(s.Control<QAbstractButton>(name)->text(), QString(caption));
        QCOMPARE(s.Control<QPushButton>("Command1")->toolTip(), QString("Apply changes"));
        QCOMPARE(s.Control<QPushButton>("Reset")->toolTip(), QString("Reset all options to default values"));
        QStringList frames;
        for (QGroupBox* frame : s.form->findChildren<QGroupBox*>()) frames << frame->title();
        for (const char* title : {"Colour Scheme", "Grid Style", "User", "Computer", "Home", "King", "Colour Selector"})
            QVERIFY2(frames.contains(title), title);
        for (int i = 0; i < 4; ++i) {
            QVERIFY(s.Control<ui::PictureButton>(qPrintable(QString("Image%1").arg(i))) != nullptr);
            QVERIFY(s.Control<QLabel>(qPrintable(QString("Image%1L").arg(i))) != nullptr);
        }
        auto* files = s.Control<QListWidget>("File1");
        QCOMPARE(files->property("Pattern").toString(), QString("*.ico;*.bmp;*.jpg;*.gif;*.wmf"));
        QVERIFY(!files->findItems("player00.ico", Qt::MatchExactly).isEmpty());
        QVERIFY(files->findItems("patf.txt", Qt::MatchExactly).isEmpty());
        QVERIFY(s.Control<ui::ColourPicker>("ColPik1") != nullptr);
    });
}

QTEST_MAIN(TestOptionsDialog)
#include "test_options_dialog.moc"

// The colour picker ColPik1: three sliders, red, green and blue, and the
// colour they make in its preview.
#include <QLabel>
#include <QSignalSpy>
#include <QSlider>
#include <QtTest>

#include "ui/widgets/ColourPicker.h"

using jv::ui::ColourPicker;

class TestColourPicker : public QObject {
    Q_OBJECT
private slots:
    void TheSlidersMakeTheColourShown();
};

void TestColourPicker::TheSlidersMakeTheColourShown() {
    // Moving the red, green and blue sliders makes the colour shown in the preview and reported with
    // each move; a colour set by the program moves the sliders without a report.
    ColourPicker picker;
    picker.show();
    QSignalSpy reported(&picker, &ColourPicker::ColourChanged);
    QCOMPARE(picker.Slider(0)->objectName(), QString("Red"));
    QCOMPARE(picker.Slider(2)->objectName(), QString("Blue"));

    picker.Slider(0)->setValue(200);
    picker.Slider(1)->setValue(64);
    picker.Slider(2)->setFocus();
    picker.Slider(2)->setValue(9);
    QTest::keyClick(picker.Slider(2), Qt::Key_Right);   // one step up with the keyboard
    QCOMPARE(picker.Colour(), QColor(200, 64, 10));
    QCOMPARE(picker.Preview()->palette().color(QPalette::Window), QColor(200, 64, 10));
    QCOMPARE(reported.size(), 4);
    QCOMPARE(reported.back().front().value<QColor>(), QColor(200, 64, 10));
    QCOMPARE(reported.front().front().value<QColor>(), QColor(200, 0, 0));
    QStringList values;
    for (QLabel* label : picker.findChildren<QLabel*>()) values << label->text();
    QVERIFY(values.contains("200") && values.contains("64") && values.contains("10"));

    picker.SetColour(QColor(1, 2, 3));
    QCOMPARE(reported.size(), 4);
    QCOMPARE(picker.Slider(1)->value(), 2);
    QCOMPARE(picker.Preview()->palette().color(QPalette::Window), QColor(1, 2, 3));
}

QTEST_MAIN(TestColourPicker)
#include "test_colour_picker.moc"

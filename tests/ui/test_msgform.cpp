// The message box: the style text picks the picture and the buttons, and the box answers with the number
// of the button pressed, or Cancel when closed without one.
#include "WindowFixture.h"
#include "ui/MsgForm.h"

using jv::ui::MsgForm;
using jv::ui::MsgFormButton;

namespace {

MsgFormButton* Button(MsgForm* form, const QString& caption) {
    for (MsgFormButton* b : form->Buttons())
        if (b->text() == caption) return b;
    return nullptr;
}

// Shows a box with the style, acts on it once it is up, and gives its answer.
int Answer(const char* style, const std::function<void(MsgForm*)>& act) {
    MsgForm form;
    int answered = -1;
    jv::uitest::WhileOpen<MsgForm>([&] { answered = form.Show("Stop ?", style); }, act);
    return answered;
}

}  // namespace

class TestMsgForm : public QObject {
    Q_OBJECT
private slots:
    void StyleWordsPickPictureAndButtons_data() {
        QTest::addColumn<QString>("style");
        QTest::addColumn<int>("picture");   // index of the picture keyword, -1 for none
        QTest::addColumn<QString>("buttons");   // caption:number, left to right
        QTest::newRow("any order") << "vbYesNo+vbquestion" << 8 << "Yes:6 No:7";
        QTest::newRow("blanks and capitals") << "VBQUESTION + vbYesNo" << 8 << "Yes:6 No:7";
        QTest::newRow("picture alone gives Ok") << "vbcritical" << 5 << "Ok:1";
        QTest::newRow("unknown words ignored") << "vbokk+vbbogus" << -1 << "Ok:1";
        QTest::newRow("last button word wins") << "vbyesno+vbretrycancel" << -1 << "Retry:4 Cancel:2";
        QTest::newRow("Continue is Yes") << "vbcontinuecancel" << -1 << "Continue:6 Cancel:2";
        QTest::newRow("normal Ok answers 0") << "vbnormal+vbinformation" << 9 << "Ok:0";
    }
    void StyleWordsPickPictureAndButtons() {
        // Style words in any case, order and spacing pick one picture and the buttons with their numbers.
        QFETCH(QString, style);
        QFETCH(int, picture);
        QFETCH(QString, buttons);
        MsgForm form;
        form.Prepare("King Captured !\r\nClick Reset", style.toStdString());
        QCOMPARE(form.PictureShown(), picture);
        QStringList shown;
        for (MsgFormButton* b : form.Buttons()) shown << b->text() + ":" + QString::number(b->Number());
        QCOMPARE(shown.join(" "), buttons);
        QCOMPARE(form.windowTitle() + ": " + form.Text(), QString("Message: King Captured !\nClick Reset"));
    }

    void AnswersTheButtonPressedOrCancel_data() {
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("how");   // "click X", "enter X" (X focused), "close", "escape"
        QTest::addColumn<int>("answer");
        QTest::newRow("No clicked") << "vbquestion+vbyesno" << "click No" << 7;
        QTest::newRow("Continue clicked") << "vbcontinuecancel" << "click Continue" << 6;
        QTest::newRow("Enter on the focused button") << "vbYesNoCancel" << "enter No" << 7;
        QTest::newRow("closed by the frame") << "vbyesno" << "close" << 2;
        QTest::newRow("Escape") << "vbyesno" << "escape" << 2;
    }
    void AnswersTheButtonPressedOrCancel() {
        // The box answers the number of the button clicked or entered, or 2 (Cancel) when closed without one.
        QFETCH(QString, style);
        QFETCH(QString, how);
        QFETCH(int, answer);
        QCOMPARE(Answer(qPrintable(style), [&](MsgForm* f) {
                     MsgFormButton* button = Button(f, how.section(' ', 1));
                     if (how == "close") f->close();
                     else if (how == "escape") QTest::keyClick(f, Qt::Key_Escape);
                     else if (how.startsWith("click")) QTest::mouseClick(button, Qt::LeftButton);
                     else button->setFocus(), QTest::keyClick(button, Qt::Key_Return);
                 }),
                 answer);
    }

    void ButtonsNeverStayPressed() {
        // The space bar neither presses nor answers, and focus changes leave no button pressed.
        bool downAfterSpace = true, downAfterFocus = true;
        QCOMPARE(Answer("vbyesno", [&](MsgForm* f) {
                     MsgFormButton *yes = Button(f, "Yes"), *no = Button(f, "No");
                     f->activateWindow();   // focus changes reach only the active window
                     QVERIFY(QTest::qWaitForWindowActive(f));
                     yes->setFocus();
                     QTest::keyPress(yes, Qt::Key_Space);
                     downAfterSpace = yes->isDown();
                     QTest::keyRelease(yes, Qt::Key_Space);
                     yes->setDown(true);
                     no->setFocus();
                     downAfterFocus = yes->isDown() || no->isDown();
                     QTest::mouseClick(no, Qt::LeftButton);
                 }),
                 7);
        QVERIFY(!downAfterSpace && !downAfterFocus);
    }
};

WINDOW_TEST_MAIN(TestMsgForm)
#include "test_msgform.moc"

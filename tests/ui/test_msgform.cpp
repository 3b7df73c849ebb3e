// The message box: the style text picks the picture and the buttons, and the
// box answers with the number of the button pressed.
#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QtTest>
#include <functional>

#include "ui/MsgForm.h"
#include "ui/MsgStyle.h"

using jv::ui::MsgButton;
using jv::ui::MsgForm;
using jv::ui::MsgFormButton;
using jv::ui::ParseMsgStyle;

namespace {

// Runs Show on a form and acts on it, through act, once it is up.
int ShowAndAct(MsgForm& form, const std::string& text, const std::string& style,
               const std::function<void(MsgForm&)>& act) {
    QTimer::singleShot(0, &form, [&form, act] {
        QTRY_VERIFY(form.isVisible());
        act(form);
    });
    return form.Show(text, style);
}

MsgFormButton* Button(MsgForm& form, const QString& caption) {
    for (MsgFormButton* b : form.Buttons())
        if (b->text() == caption) return b;
    return nullptr;
}

}  // namespace

class TestMsgForm : public QObject {
    Q_OBJECT
private slots:
    void StyleWordsInAnyCaseAndOrder();
    void EveryButtonKeyword();
    void CapitalStyleShowsQuestionAndNoAnswersSeven();
    void PictureKeywordAloneGivesOneOk();
    void ContinueAnswersSix();
    void EnterPressesTheFocusedButton();
    void ClosingWithoutAButtonIsCancel();
    void ButtonsNeverStayPressed();
};

void TestMsgForm::StyleWordsInAnyCaseAndOrder() {
    // "vbYesNo+vbquestion", "vbok+vbcritical" and "vbcritical+vbok" are all
    // read, blanks round the words ignored; unknown words change nothing.
    const auto a = ParseMsgStyle("vbYesNo+vbquestion");
    const auto b = ParseMsgStyle("vbQuestion + vbYesNo");
    QCOMPARE(a.Picture, 8);
    QCOMPARE(b.Picture, 8);
    QVERIFY(a.Buttons == b.Buttons);
    QVERIFY((a.Buttons == std::vector<MsgButton>{{"Yes", 6}, {"No", 7}}));
    QCOMPARE(ParseMsgStyle("vbok+vbcritical").Picture, 5);
    QCOMPARE(ParseMsgStyle("vbcritical+vbok").Picture, 5);
    QVERIFY((ParseMsgStyle("vbokk+vbbogus").Buttons == std::vector<MsgButton>{{"Ok", 1}}));
    QCOMPARE(ParseMsgStyle("vbokk+vbbogus").Picture, -1);
    // Two button keywords: the last one's buttons are shown.
    QVERIFY((ParseMsgStyle("vbyesno+vbretrycancel").Buttons ==
             std::vector<MsgButton>{{"Retry", 4}, {"Cancel", 2}}));
}

void TestMsgForm::EveryButtonKeyword() {
    // Each button keyword gives its captions left to right with their numbers;
    // "vbnormal" is an Ok that answers 0.
    const std::vector<std::pair<std::string, std::vector<MsgButton>>> table{
        {"vbok", {{"Ok", 1}}},
        {"vbokonly", {{"Ok", 1}}},
        {"vbnormal", {{"Ok", 0}}},
        {"vbokcancel", {{"Ok", 1}, {"Cancel", 2}}},
        {"vbcancelok", {{"Ok", 1}, {"Cancel", 2}}},
        {"vbyes", {{"Yes", 6}}},
        {"vbno", {{"No", 7}}},
        {"vbyesno", {{"Yes", 6}, {"No", 7}}},
        {"vbyesnocancel", {{"Yes", 6}, {"No", 7}, {"Cancel", 2}}},
        {"vbretrycancel", {{"Retry", 4}, {"Cancel", 2}}},
        {"vbabortretryignore", {{"Abort", 3}, {"Retry", 4}, {"Ignore", 5}}},
        {"vbabort", {{"Abort", 3}}},
        {"vbretry", {{"Retry", 4}}},
        {"vbignore", {{"Ignore", 5}}},
        {"vbcancel", {{"Cancel", 2}}},
        {"vbcontinuecancel", {{"Continue", 6}, {"Cancel", 2}}},
    };
    for (const auto& [keyword, buttons] : table) {
        QVERIFY2(ParseMsgStyle(keyword).Buttons == buttons, keyword.c_str());
        MsgForm form;
        form.Prepare("text", keyword);
        QCOMPARE(form.Buttons().size(), buttons.size());
        for (std::size_t i = 0; i < buttons.size(); ++i) {
            QCOMPARE(form.Buttons()[i]->text().toStdString(), buttons[i].Caption);
            QCOMPARE(form.Buttons()[i]->property("tag").toString().toInt(), buttons[i].Number);
        }
    }
    // The ten picture keywords each show their own picture, and only it.
    const char* pictures[] = {"vblighton", "vbcustom", "vbtrash", "vbprint", "vbhappy",
                              "vbcritical", "vberror", "vbexclamation", "vbquestion", "vbinformation"};
    for (int i = 0; i < 10; ++i) {
        MsgForm form;
        form.Prepare("text", std::string(pictures[i]) + "+vbok");
        QCOMPARE(form.PictureShown(), i);
    }
}

void TestMsgForm::CapitalStyleShowsQuestionAndNoAnswersSeven() {
    // VBQUESTION+VBYESNO shows the question picture and Yes/No; No answers 7.
    MsgForm form;
    int picture = -2;
    QStringList captions;
    const int answer = ShowAndAct(form, "Exit?", "VBQUESTION+VBYESNO", [&](MsgForm& f) {
        picture = f.PictureShown();
        for (auto* b : f.Buttons()) captions << b->text();
        QTest::mouseClick(Button(f, "No"), Qt::LeftButton);
    });
    QCOMPARE(answer, 7);
    QCOMPARE(picture, 8);
    QCOMPARE(captions, QStringList({"Yes", "No"}));
    QCOMPARE(form.windowTitle(), QString("Message"));
    QCOMPARE(form.Text(), QString("Exit?"));
}

void TestMsgForm::PictureKeywordAloneGivesOneOk() {
    // A style with only a picture keyword shows one "Ok" that answers 1; the
    // text's CR LF is a line break.
    MsgForm form;
    QStringList captions;
    int picture = -2;
    const int answer = ShowAndAct(form, "King Captured !\r\nClick Reset", "vbcritical", [&](MsgForm& f) {
        for (auto* b : f.Buttons()) captions << b->text();
        picture = f.PictureShown();
        QTest::mouseClick(f.Buttons().front(), Qt::LeftButton);
    });
    QCOMPARE(answer, 1);
    QCOMPARE(captions, QStringList({"Ok"}));
    QCOMPARE(picture, 5);
    QCOMPARE(form.Text(), QString("King Captured !\nClick Reset"));
}

void TestMsgForm::ContinueAnswersSix() {
    // "vbcontinuecancel": Continue answers 6, the number of Yes.
    MsgForm form;
    const int answer = ShowAndAct(form, "Go on?", "vbcontinuecancel",
                                  [](MsgForm& f) { QTest::mouseClick(Button(f, "Continue"), Qt::LeftButton); });
    QCOMPARE(answer, 6);
    MsgForm second;
    QCOMPARE(ShowAndAct(second, "Go on?", "vbcontinuecancel",
                        [](MsgForm& f) { QTest::mouseClick(Button(f, "Cancel"), Qt::LeftButton); }),
             2);
}

void TestMsgForm::EnterPressesTheFocusedButton() {
    // Enter presses the button that has the focus, not the first one.
    MsgForm form;
    const int answer = ShowAndAct(form, "Step 1 of 3\r\nStop ?", "vbquestion+vbYesNoCancel", [](MsgForm& f) {
        MsgFormButton* no = Button(f, "No");
        no->setFocus();
        QTest::keyClick(no, Qt::Key_Return);
    });
    QCOMPARE(answer, 7);
}

void TestMsgForm::ClosingWithoutAButtonIsCancel() {
    // Closing the box by its frame or with Escape answers 2 (Cancel), which
    // every caller takes as "no".
    MsgForm form;
    QCOMPARE(ShowAndAct(form, "Reset layout?", "vbquestion+vbyesno", [](MsgForm& f) { f.close(); }), 2);
    MsgForm second;
    QCOMPARE(ShowAndAct(second, "Reset layout?", "vbquestion+vbyesno",
                        [](MsgForm& f) { QTest::keyClick(&f, Qt::Key_Escape); }),
             2);
}

void TestMsgForm::ButtonsNeverStayPressed() {
    // The space bar neither presses nor answers, and focus changes leave no
    // button pressed.
    MsgForm form;
    bool downAfterSpace = true, downAfterFocus = true;
    const int answer = ShowAndAct(form, "text", "vbyesno", [&](MsgForm& f) {
        MsgFormButton* yes = Button(f, "Yes");
        MsgFormButton* no = Button(f, "No");
        f.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f));
        yes->setFocus();
        QTest::keyPress(yes, Qt::Key_Space);
        downAfterSpace = yes->isDown();
        QTest::keyRelease(yes, Qt::Key_Space);
        yes->setDown(true);
        no->setFocus();
        downAfterFocus = yes->isDown() || no->isDown();
        QTest::mouseClick(no, Qt::LeftButton);
    });
    QCOMPARE(answer, 7);
    QVERIFY(!downAfterSpace);
    QVERIFY(!downAfterFocus);
}

QTEST_MAIN(TestMsgForm)
#include "test_msgform.moc"

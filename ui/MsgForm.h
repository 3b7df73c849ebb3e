#pragma once
#include <QDialog>
#include <QPushButton>
#include <string>
#include <vector>

class QLabel;
class QHBoxLayout;

namespace jv::ui {

// A button of the message box. It returns its number when the mouse is
// released over it or Enter is pressed while it has the focus, and it never
// stays pressed: focus changes and other keys clear its pressed state.
class MsgFormButton : public QPushButton {
    Q_OBJECT
public:
    MsgFormButton(const QString& caption, int number, QWidget* parent);
    int Number() const { return property("tag").toString().toInt(); }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
};

// The program's message box, titled "Message": the text, one of ten
// pictures and the buttons that the style text asks for.
class MsgForm : public QDialog {
    Q_OBJECT
public:
    explicit MsgForm(QWidget* parent = nullptr);

    // Shows the text (CR LF line breaks) modally with the style, e.g.
    // "vbquestion+vbyesno", and returns the number of the button pressed.
    // Closing the window without a button answers ClosedAnswer.
    int Show(const std::string& text, const std::string& style);

    // Closing the box by its frame or Escape is taken as Cancel.
    static constexpr int ClosedAnswer = 2;

    // Sets up the box without showing it (Show does this first).
    void Prepare(const std::string& text, const std::string& style);
    // The picture shown (index of its keyword), -1 when none.
    int PictureShown() const;
    std::vector<MsgFormButton*> Buttons() const { return buttons_; }
    QString Text() const;

private:
    static constexpr int MinTextWidth = 220;
    static constexpr int MaxTextWidth = 640;
    QLabel* text_;
    std::vector<QLabel*> icons_;
    QHBoxLayout* buttonRow_;
    std::vector<MsgFormButton*> buttons_;
    int answer_ = ClosedAnswer;
};

}  // namespace jv::ui

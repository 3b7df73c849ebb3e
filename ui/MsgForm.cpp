#include "ui/MsgForm.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/MsgPictures.h"
#include "ui/MsgStyle.h"

namespace jv::ui {

MsgFormButton::MsgFormButton(const QString& caption, int number, QWidget* parent)
    : QPushButton(caption, parent) {
    setProperty("tag", QString::number(number));
    setCheckable(false);
    setAutoDefault(false);
    setMinimumWidth(84);
}

void MsgFormButton::focusInEvent(QFocusEvent* event) {
    QPushButton::focusInEvent(event);
    setDown(false);
}

void MsgFormButton::focusOutEvent(QFocusEvent* event) {
    QPushButton::focusOutEvent(event);
    setDown(false);
}

void MsgFormButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    // Other keys (the space bar included) neither press nor release it.
    setDown(false);
    if (event->key() != Qt::Key_Space && event->key() != Qt::Key_Select) QPushButton::keyPressEvent(event);
}

void MsgFormButton::keyReleaseEvent(QKeyEvent* event) {
    setDown(false);
    if (event->key() != Qt::Key_Space && event->key() != Qt::Key_Select) QPushButton::keyReleaseEvent(event);
}

MsgForm::MsgForm(QWidget* parent) : QDialog(parent) {
    setObjectName("MsgForm");
    setWindowTitle("Message");
    setModal(true);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    auto* body = new QHBoxLayout;
    body->setSpacing(16);
    for (int i = 0; i < 10; ++i) {
        auto* icon = new QLabel(this);
        icon->setObjectName(QString("icons%1").arg(i));
        icon->setPixmap(MsgPicture(i));
        icon->setFixedSize(48, 48);
        icon->hide();
        body->addWidget(icon, 0, Qt::AlignTop);
        icons_.push_back(icon);
    }
    text_ = new QLabel(this);
    text_->setObjectName("Label1");
    text_->setTextFormat(Qt::PlainText);
    text_->setWordWrap(true);
    text_->setMaximumWidth(MaxTextWidth);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    body->addWidget(text_, 1, Qt::AlignVCenter);

    buttonRow_ = new QHBoxLayout;
    buttonRow_->addStretch();
    buttonRow_->addStretch();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 18, 20, 14);
    layout->setSpacing(16);
    layout->addLayout(body);
    layout->addLayout(buttonRow_);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void MsgForm::Prepare(const std::string& text, const std::string& style) {
    QString shown = QString::fromStdString(text);
    shown.replace("\r\n", "\n");
    text_->setText(shown);
    // The box is as wide as its longest line, up to a readable width, so a
    // file name stays on the line of its words.
    int widest = 0;
    for (const QString& line : shown.split('\n'))
        widest = std::max(widest, text_->fontMetrics().horizontalAdvance(line));
    text_->setMinimumWidth(std::clamp(widest + 2, MinTextWidth, MaxTextWidth));
    for (QLabel* icon : icons_) icon->hide();
    for (MsgFormButton* button : buttons_) delete button;
    buttons_.clear();

    const MsgStyle parsed = ParseMsgStyle(style);
    if (parsed.Picture >= 0) icons_[static_cast<std::size_t>(parsed.Picture)]->show();
    int cmdIndex = 0;
    for (const MsgButton& b : parsed.Buttons) {
        auto* button = new MsgFormButton(QString::fromStdString(b.Caption), b.Number, this);
        button->setObjectName(QString("cmd%1").arg(cmdIndex++));
        connect(button, &QPushButton::clicked, this, [this, button] {
            answer_ = button->Number();
            accept();
        });
        buttonRow_->insertWidget(buttonRow_->count() - 1, button);
        buttons_.push_back(button);
    }
    answer_ = ClosedAnswer;
    buttons_.front()->setFocus();
}

int MsgForm::Show(const std::string& text, const std::string& style) {
    Prepare(text, style);
    exec();
    return answer_;
}

int MsgForm::PictureShown() const {
    for (std::size_t i = 0; i < icons_.size(); ++i)
        if (!icons_[i]->isHidden()) return static_cast<int>(i);
    return -1;
}

QString MsgForm::Text() const { return text_->text(); }

}  // namespace jv::ui

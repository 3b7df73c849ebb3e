#include "ui/Form2.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>
#include <algorithm>

#include "records/ColourScheme.h"
#include "records/Configuration.h"
#include "records/TextFile.h"
#include "ui/ColourValue.h"
#include "ui/SquareSample.h"
#include "ui/WindowColours.h"
#include "ui/widgets/ColourPicker.h"
#include "ui/widgets/PictureButton.h"

namespace jv::ui {

namespace {

const char* const FrameCaptions[4] = {"User", "Computer", "Home", "King"};
// The grid styles by button index, which is the BoardStyle they set.
const char* const StyleCaptions[3] = {"Sunk", "Raised", "Flat"};
// What each style draws, in plain words: the captions are kept for the
// configuration's sake, the tool tips say what the player sees.
const char* const StyleToolTips[3] = {"Draws flat squares in a grid of lines", "Draws raised squares",
                                      "Draws sunken squares"};

QString SchemeName(const std::string& schemeFile) {
    const QString name = QString::fromStdString(schemeFile);
    return name.endsWith(".col") ? name.chopped(4) : QString();
}

QGroupBox* Frame(const QString& caption, QLayout* content) {
    auto* frame = new QGroupBox(caption);
    frame->setLayout(content);
    return frame;
}

// Widgets side by side, each with its stretch; no widget stands for empty
// room taking the stretch.
QWidget* Row(std::initializer_list<std::pair<QWidget*, int>> parts) {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const auto& [part, stretch] : parts) {
        if (part != nullptr) layout->addWidget(part, stretch);
        else layout->addStretch(stretch);
    }
    return row;
}

}  // namespace

Form2::Form2(Game& game, QWidget* parent) : QDialog(parent), g_(game) {
    setObjectName("Form2");
    setWindowTitle("Options");
    if (parent != nullptr) setPalette(parent->palette());
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(8);
    layout->addWidget(BuildSchemeAndStyle());
    layout->addWidget(BuildDrawing());
    layout->addWidget(BuildFrames());
    layout->addWidget(BuildSources(), 1);
    layout->addWidget(BuildCommands());
    ShowSettings();
}

QWidget* Form2::BuildSchemeAndStyle() {
    combo1_ = new QComboBox;
    combo1_->setObjectName("Combo1");
    combo1_->setToolTip("The colours of the window and the board");
    // A name given by two schemes is listed once: the first of them is the
    // one that loads.
    for (const std::string& name : FillSchemeList(g_)) {
        const QString text = QString::fromStdString(name);
        if (combo1_->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive) == -1) combo1_->addItem(text);
    }
    auto* schemeLayout = new QVBoxLayout;
    schemeLayout->addWidget(combo1_);
    schemeLayout->addStretch(1);

    auto* styleLayout = new QHBoxLayout;
    auto* styles = new QButtonGroup(this);
    for (int i = 0; i < 3; ++i) {
        option3_[i] = new QRadioButton(StyleCaptions[i]);
        option3_[i]->setObjectName(QString("Option3_%1").arg(i));
        option3_[i]->setProperty("index", i);
        option3_[i]->setToolTip(StyleToolTips[i]);
        option3_[i]->setIconSize(QSize(52, 52));
        styles->addButton(option3_[i], i);
        styleLayout->addWidget(option3_[i]);
    }
    PaintStyleSamples();

    return Row({{Frame("Colour Scheme", schemeLayout), 1}, {Frame("Grid Style", styleLayout), 2}});
}

void Form2::PaintStyleSamples() {
    for (int i = 0; i < 3; ++i) {
        Game sample = g_;
        sample.BoardStyle = i;
        option3_[i]->setIcon(QPixmap::fromImage(SquareSample(sample, pictures_, 2, -1, 52)));
    }
}

QWidget* Form2::BuildDrawing() {
    check1_ = new QCheckBox("Show Grid Letters");
    check1_->setObjectName("Check1");
    check1_->setToolTip("Letters down the left of the board and numbers across the top");
    option1_ = new QRadioButton("Colours");
    option1_->setObjectName("Option1");
    option1_->setToolTip("Draw the pieces as blocks in the four colours below");
    option2_ = new QRadioButton("Symbols");
    option2_->setObjectName("Option2");
    option2_->setToolTip("Draw the pieces with the four symbols below");
    QWidget* row = Row({{check1_, 0}, {nullptr, 1}, {new QLabel("Pieces:"), 0}, {option1_, 0}, {option2_, 0}});
    row->layout()->setContentsMargins(8, 0, 8, 0);
    return row;
}

QWidget* Form2::BuildFrames() {
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* symbols = new QButtonGroup(this);
    for (int i = 0; i < 4; ++i) {
        image_[i] = new PictureButton("Click to set symbol");
        image_[i]->setObjectName(QString("Image%1").arg(i));
        image_[i]->setCheckable(true);
        image_[i]->setFixedSize(56, 56);
        symbols->addButton(image_[i], i);
        imageL_[i] = new QLabel;
        imageL_[i]->setObjectName(QString("Image%1L").arg(i));
        imageL_[i]->setToolTip("Click to set colour");
        imageL_[i]->setFixedSize(56, 18);
        imageL_[i]->setFrameShape(QFrame::Box);
        imageL_[i]->setAutoFillBackground(true);
        imageL_[i]->setCursor(Qt::PointingHandCursor);
        imageL_[i]->installEventFilter(this);
        auto* frameLayout = new QVBoxLayout;
        frameLayout->setSpacing(4);
        frameLayout->addWidget(image_[i], 0, Qt::AlignHCenter);
        frameLayout->addWidget(imageL_[i], 0, Qt::AlignHCenter);
        layout->addWidget(Frame(FrameCaptions[i], frameLayout));
    }
    connect(symbols, &QButtonGroup::idClicked, this, &Form2::SelectFrame);
    return row;
}

QWidget* Form2::BuildSources() {
    file1_ = new QListWidget;
    file1_->setObjectName("File1");
    file1_->setProperty("Pattern", FilePattern);
    file1_->setToolTip(QString("Pictures in the program's folder (%1)").arg(FilePattern));
    file1_->setIconSize(QSize(24, 24));
    file1_->setMinimumHeight(170);
    connect(file1_, &QListWidget::itemClicked, this, &Form2::ChooseFile);
    connect(file1_, &QListWidget::itemActivated, this, &Form2::ChooseFile);
    // A file reached with the arrow keys is chosen as a clicked one is; the
    // list's own moves (showing the chosen frame's file) happen unfocused.
    connect(file1_, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        if (file1_->hasFocus()) ChooseFile(item);
    });
    fileNote_ = new QLabel;
    fileNote_->setObjectName("FileNote");
    auto* filesLayout = new QVBoxLayout;
    filesLayout->addWidget(file1_, 1);
    filesLayout->addWidget(fileNote_);
    FillFileList();

    colPik1_ = new ColourPicker;
    colPik1_->setObjectName("ColPik1");
    connect(colPik1_, &ColourPicker::ColourChanged, this, [this](const QColor& c) { SetFrameColour(frame_, c); });
    auto* adjust = new QPushButton("Adjust command button colours");
    adjust->setObjectName("cmdadjust4");
    adjust->setToolTip("Give the command buttons the colour of the Colour Selector");
    connect(adjust, &QPushButton::clicked, this, [this] {
        // 0 stands for the scheme's own button colour, so black is kept as
        // the black next to it.
        const std::int32_t value = FromQColor(colPik1_->Colour());
        SetButtonColour(value == 0 ? 1 : value);
    });
    auto* colourLayout = new QVBoxLayout;
    colourLayout->addWidget(colPik1_);
    colourLayout->addSpacing(8);
    colourLayout->addWidget(adjust);
    colourLayout->addStretch(1);

    return Row({{Frame("Symbol Files", filesLayout), 1}, {Frame("Colour Selector", colourLayout), 1}});
}

QWidget* Form2::BuildCommands() {
    const auto add = [](const char* name, const char* caption, const char* toolTip) {
        auto* button = new QPushButton(caption);
        button->setObjectName(name);
        button->setToolTip(toolTip);
        button->setAutoDefault(false);
        return button;
    };
    QPushButton* reset = add("Reset", "Default", "Reset all options to default values");
    QPushButton* apply = add("Command1", "Apply", "Apply changes");
    QPushButton* exit = add("Command2", "Exit", "Exit without applying changes");
    connect(reset, &QPushButton::clicked, this, &Form2::Default);
    connect(apply, &QPushButton::clicked, this, &Form2::Apply);
    connect(exit, &QPushButton::clicked, this, &QDialog::reject);
    return Row({{reset, 0}, {nullptr, 1}, {apply, 0}, {exit, 0}});
}

void Form2::FillFileList() {
    const QDir folder(QString::fromStdString(g_.ProgramFolder));
    const QStringList patterns = QString(FilePattern).split(';');
    for (const QString& name : folder.entryList(patterns, QDir::Files, QDir::Name | QDir::IgnoreCase)) {
        auto* item = new QListWidgetItem(name, file1_);
        const QImage picture = ReadPicture(folder.filePath(name).toStdString());
        if (!picture.isNull())
            item->setIcon(QPixmap::fromImage(picture.scaled(24, 24, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    }
}

void Form2::ShowSettings() {
    combo1_->setCurrentIndex(combo1_->findText(SchemeName(g_.SchemeFile), Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (g_.BoardStyle >= 0 && g_.BoardStyle <= 2) option3_[g_.BoardStyle]->setChecked(true);
    check1_->setChecked(g_.ShowLabels != 0);
    (g_.ColourMode == 1 ? option1_ : option2_)->setChecked(true);
    for (int i = 0; i < 4; ++i) {
        SetSymbol(i, QString::fromStdString(g_.PictureFiles[i]));
        SetFrameColour(i, ToQColor(g_.PieceColours[i]));
    }
    SetButtonColour(g_.ColourTable[13]);
    SelectFrame(0);
}

void Form2::SelectFrame(int frame) {
    frame_ = std::clamp(frame, 0, 3);
    image_[frame_]->setChecked(true);
    colPik1_->SetColour(FrameColour(frame_));
    const auto found = file1_->findItems(image_[frame_]->Tag(), Qt::MatchFixedString);
    file1_->setCurrentItem(found.isEmpty() ? nullptr : found.front());
    if (!found.isEmpty()) file1_->scrollToItem(found.front());
    fileNote_->setText(QString("Symbol for %1: click a file").arg(FrameCaptions[frame_]));
}

void Form2::ChooseFile(QListWidgetItem* item) {
    if (item == nullptr) return;
    const QString name = item->text();
    if (ReadPicture(InProgramFolder(g_, name.toStdString())).isNull()) {
        fileNote_->setText(name + ": cannot be shown");
        return;
    }
    SetSymbol(frame_, name);
    fileNote_->setText(QString("%1: %2").arg(FrameCaptions[frame_], name));
}

void Form2::SetSymbol(int frame, const QString& fileName) {
    image_[frame]->SetTag(fileName);
    QImage picture = ReadPicture(InProgramFolder(g_, fileName.toStdString()));
    // A picture that cannot be read shows the board's own stand-in.
    if (picture.isNull()) picture = FallbackPicture(FrameColour(frame));
    image_[frame]->SetPicture(picture);
    image_[frame]->setToolTip("Click to set symbol");
}

void Form2::SetFrameColour(int frame, const QColor& colour) {
    QPalette palette = imageL_[frame]->palette();
    palette.setColor(QPalette::Window, colour);
    imageL_[frame]->setPalette(palette);
}

QColor Form2::FrameColour(int frame) const { return imageL_[frame]->palette().color(QPalette::Window); }

void Form2::SetButtonColour(std::int32_t value) {
    buttonColour_ = value;
    std::array<std::int32_t, 14> table = g_.ColourTable;
    table[13] = value;
    ColourCommandButtons(*this, CommandButtonColour(table));
}

void Form2::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    // The list has its size only now: the chosen frame's file is brought into view.
    if (file1_->currentItem() != nullptr) file1_->scrollToItem(file1_->currentItem());
}

bool Form2::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease)
        for (int i = 0; i < 4; ++i)
            if (watched == imageL_[i]) SelectFrame(i);
    return QDialog::eventFilter(watched, event);
}

void Form2::Apply() {
    if (!combo1_->currentText().isEmpty()) g_.SchemeFile = combo1_->currentText().toStdString() + ".col";
    for (int i = 0; i < 3; ++i)
        if (option3_[i]->isChecked()) g_.BoardStyle = option3_[i]->property("index").toInt();
    if (option1_->isChecked()) {
        for (int i = 0; i < 4; ++i) g_.PieceColours[i] = FromQColor(FrameColour(i));
        g_.ColourMode = 1;
    } else {
        g_.ColourMode = 0;
        for (int i = 0; i < 4; ++i) g_.PictureFiles[i] = image_[i]->Tag().toStdString();
    }
    g_.ShowLabels = check1_->isChecked() ? 1 : 0;
    g_.ColourTable[13] = buttonColour_;
    if (Applied) Applied();
    // The dialog takes on the window's new colours too.
    if (parentWidget() != nullptr) setPalette(parentWidget()->palette());
    SetButtonColour(buttonColour_);
    PaintStyleSamples();
}

void Form2::Default() {
    combo1_->setCurrentIndex(combo1_->findText("xp", Qt::MatchExactly | Qt::MatchCaseSensitive));
    option3_[0]->setChecked(true);
    check1_->setChecked(true);
    option2_->setChecked(true);
    for (int i = 0; i < 4; ++i) {
        SetFrameColour(i, ToQColor(DefaultPieceColours[i]));
        SetSymbol(i, DefaultPictures[i]);
    }
    SetButtonColour(0);
    SelectFrame(frame_);
}

}  // namespace jv::ui

#pragma once
#include <QColor>
#include <QDialog>
#include <array>
#include <cstdint>
#include <functional>

#include "core/Game.h"
#include "ui/PiecePictures.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QRadioButton;

namespace jv::ui {

class ColourPicker;
class PictureButton;

// The options dialog, Form2: the colour scheme, the grid style, the grid
// letters, pieces drawn as colours or as symbols, the four piece colours and
// symbol pictures, and the command buttons' colour. Nothing changes until
// Apply; Exit leaves without changes; Default puts the default values into
// the controls. The frames are numbered as the configuration keeps them:
// 0 User, 1 Computer, 2 Home, 3 King.
class Form2 : public QDialog {
    Q_OBJECT
public:
    explicit Form2(Game& game, QWidget* parent = nullptr);

    // Run after Apply has changed the game's settings, so the window can
    // load the scheme, apply the colours and pictures and redraw the board.
    std::function<void()> Applied;

    // Apply (Command1), Default (Reset).
    void Apply();
    void Default();

    // The frame whose colour and symbol the colour selector and the file list
    // set; chosen by clicking the frame's symbol or colour.
    void SelectFrame(int frame);
    int SelectedFrame() const { return frame_; }

    // The symbol files File1 lists, from the program's folder.
    static constexpr const char* FilePattern = "*.ico;*.bmp;*.jpg;*.gif;*.wmf";

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* BuildSchemeAndStyle();
    QWidget* BuildDrawing();
    QWidget* BuildFrames();
    QWidget* BuildSources();
    QWidget* BuildCommands();
    void ShowSettings();
    void FillFileList();
    void ChooseFile(QListWidgetItem* item);
    // Each grid style button shows the squares its style draws, in the
    // colours in use.
    void PaintStyleSamples();

    void SetSymbol(int frame, const QString& fileName);
    void SetFrameColour(int frame, const QColor& colour);
    QColor FrameColour(int frame) const;
    // The colour the dialog holds for the command buttons (entry 13), shown
    // on its own buttons at once.
    void SetButtonColour(std::int32_t value);

    Game& g_;
    PiecePictures pictures_;
    QComboBox* combo1_ = nullptr;
    std::array<QRadioButton*, 3> option3_{};
    QCheckBox* check1_ = nullptr;
    QRadioButton* option1_ = nullptr;
    QRadioButton* option2_ = nullptr;
    std::array<PictureButton*, 4> image_{};
    std::array<QLabel*, 4> imageL_{};
    QListWidget* file1_ = nullptr;
    QLabel* fileNote_ = nullptr;
    ColourPicker* colPik1_ = nullptr;
    int frame_ = 0;
    std::int32_t buttonColour_ = 0;
};

}  // namespace jv::ui

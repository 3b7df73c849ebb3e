#pragma once
// Shared set-up of the window tests: a main that keeps every file they and Qt write inside one temporary
// folder, a program folder of their own, a window whose questions are answered from a script, a bounded
// wait in a modal dialog, and the pointer moves of a drag on the board picture.
#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QListWidget>
#include <QMouseEvent>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/Game.h"
#include "ui/BoardPicture.h"
#include "ui/MainWindow.h"

namespace jv::uitest {

// Runs a test class with a home, configuration, data, cache, runtime and temporary folder of its own, all
// inside one temporary folder removed at the end: Qt's own files (the file dialog's history) and every
// program folder of the tests land there, never in the user's home.
template <typename Test>
int RunWindowTest(int argc, char** argv) {
    QTemporaryDir root(QDir::tempPath() + "/" + QFileInfo(argv[0]).fileName() + "-XXXXXX");
    if (!root.isValid()) return 1;
    for (const char* name : {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
        const QString path = root.filePath(name);
        QDir().mkpath(path);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);   // as a runtime folder must be
        qputenv(name, QFile::encodeName(path));
    }
    QApplication app(argc, argv);
    QApplication::setAttribute(Qt::AA_Use96Dpi, true);   // as QTEST_MAIN does: pictures measured in pixels
    Test test;
    return QTest::qExec(&test, argc, argv);
}
#define WINDOW_TEST_MAIN(Test) \
    int main(int argc, char** argv) { return jv::uitest::RunWindowTest<Test>(argc, argv); }

// How long a modal dialog may stay open after the test has answered it.
constexpr int AnsweredDialogLimitMs = 5000;

// Runs open, which opens a modal dialog of type T and waits in it, and hands the dialog to answer once it is
// up. Gives what went wrong, "" when nothing: no such dialog came, or it was still open a while after the
// answer, in which case it is closed so that open returns.
template <typename T>
QString WhileOpen(const std::function<void()>& open, const std::function<void(T*)>& answer) {
    QPointer<T> dialog;
    bool came = false;
    QDeadlineTimer deadline(QDeadlineTimer::Forever);   // until the answer has been given
    bool stuck = false;
    QTimer poll;
    poll.setInterval(10);
    QObject::connect(&poll, &QTimer::timeout, [&] {
        if (!came) {
            dialog = qobject_cast<T*>(QApplication::activeModalWidget());
            if (dialog.isNull()) return;
            came = true;
            answer(dialog);
            deadline.setRemainingTime(AnsweredDialogLimitMs);
        } else if (!dialog.isNull() && dialog->isVisible() && deadline.hasExpired()) {
            stuck = true;
            dialog->reject();
        }
    });
    poll.start();
    open();
    if (!came) return "no " + QString(T::staticMetaObject.className()) + " was opened";
    return stuck ? QString(T::staticMetaObject.className()) + " still open after its answer; closed" : QString();
}

// A temporary program folder holding the shipped data files.
class ProgramFolder {
public:
    explicit ProgramFolder(bool withSchemes = true) {
        const QDir data(JARLSVAKT_DATA_DIR);
        for (const QString& name : data.entryList(QDir::Files)) {
            if (!withSchemes && name == "all.col") continue;
            QFile::copy(data.filePath(name), dir_.filePath(name));
        }
    }
    std::string Path() const { return dir_.path().toStdString() + "/"; }
    std::string File(const std::string& name) const { return Path() + name; }
    bool Exists(const std::string& name) const { return QFile::exists(QString::fromStdString(File(name))); }
    std::string Read(const std::string& name) const {
        QFile file(QString::fromStdString(File(name)));
        if (!file.open(QIODevice::ReadOnly)) return "";
        return file.readAll().toStdString();
    }
    void Write(const std::string& name, const std::string& content) const {
        QFile file(QString::fromStdString(File(name)));
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) file.write(content.c_str());
    }

private:
    QTemporaryDir dir_;
};

// The questions the window put, and the answers it gets.
struct Questions {
    std::vector<std::pair<std::string, std::string>> Asked;   // text, style
    std::deque<int> Answers;
    int DefaultAnswer = 1;
    // Answers kept for one question whenever it is put, before the script.
    std::map<std::string, int> AnswerTo;

    void AnswerFor(ui::MainWindow& window) {
        window.Answerer = [this](const std::string& text, const std::string& style) {
            Asked.emplace_back(text, style);
            if (auto fixed = AnswerTo.find(text); fixed != AnswerTo.end()) return fixed->second;
            if (Answers.empty()) return DefaultAnswer;
            const int answer = Answers.front();
            Answers.pop_front();
            return answer;
        };
    }
    bool WasAsked(const std::string& text) const {
        for (const auto& [t, s] : Asked)
            if (t == text) return true;
        return false;
    }
};

// A window started in its own program folder, shown, its questions
// answered from a script and its pauses cut to nothing.
struct StartedWindow {
    ProgramFolder folder;
    ui::MainWindow window{folder.Path()};
    Questions questions;
    StartedWindow() {
        questions.AnswerFor(window);
        window.PauseLimit = 0;
        window.Start();
        window.show();
        (void)QTest::qWaitForWindowExposed(&window);
    }
    template <typename T>
    T* Find(const char* name) {
        return window.findChild<T*>(name);
    }
};

// A layout line of a board built from one text per Col, one character per
// Row: '.' empty, 'd' defender, 'a' attacker, 'K' the King, 'H' a corner.
inline std::string LayoutText(std::initializer_list<const char*> cols) {
    const int width = static_cast<int>(cols.size());
    const int height = static_cast<int>(std::string(*cols.begin()).size());
    int kingCol = 0, kingRow = 0, col = 0;
    std::string squares;
    for (const char* text : cols) {
        ++col;
        for (int row = 1; row <= height; ++row) {
            const char c = text[row - 1];
            if (c == 'K') {
                kingCol = col;
                kingRow = row;
            }
            squares += c == 'a' ? '1' : (c == 'd' || c == 'K') ? '0' : c == 'H' ? 'H' : 'E';
        }
    }
    auto two = [](int n) { return std::string(1, static_cast<char>('0' + n / 10)) + static_cast<char>('0' + n % 10); };
    return two(width) + two(height) + two(kingCol) + two(kingRow) + squares + "\r\n";
}

// Sends one mouse event to the board picture at a pixel position.
inline void SendMouse(ui::BoardPicture* picture, QEvent::Type type, QPoint at, Qt::MouseButtons held) {
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, picture->mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(picture, &event);
}

// Drags with the mouse from the centre of one square to the centre of another.
inline void Drag(ui::BoardPicture* picture, Square from, Square to) {
    const QPoint start = picture->SquareCentre(from.Col, from.Row);
    const QPoint end = picture->SquareCentre(to.Col, to.Row);
    SendMouse(picture, QEvent::MouseButtonPress, start, Qt::LeftButton);
    SendMouse(picture, QEvent::MouseMove, (start + end) / 2, Qt::LeftButton);
    SendMouse(picture, QEvent::MouseMove, end, Qt::LeftButton);
    SendMouse(picture, QEvent::MouseButtonRelease, end, Qt::NoButton);
}

// The lines of a list widget.
inline std::vector<std::string> Lines(const QListWidget* list) {
    std::vector<std::string> lines;
    for (int i = 0; i < list->count(); ++i) lines.push_back(list->item(i)->text().toStdString());
    return lines;
}

}  // namespace jv::uitest

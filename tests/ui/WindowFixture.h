#pragma once
// Shared set-up of the window tests: a main that keeps every file they and Qt write inside one temporary
// folder, a program folder of their own, a window whose questions are answered from a script, a bounded
// wait in a modal dialog, and the pointer moves of a drag on the board picture.
#include <QtTest>
#include <QtWidgets>
#include <functional>
#include <map>
#include <utility>
#include <source_location>
#include <string>
#include <vector>

#include "core/Game.h"
#include "support/LayoutText.h"
#include "ui/BoardPicture.h"
#include "ui/MainWindow.h"

namespace jv::uitest {

using jv::test::LayoutText;

// Runs a test class with a home, configuration, data, cache, runtime and temporary folder of its own, all
// in one temporary folder removed at the end: Qt's own files (the file dialog's history) and every program
// folder of the tests land there, never in the user's home.
template <typename Test>
int RunWindowTest(int argc, char** argv) {
    QTemporaryDir root(QDir::tempPath() + "/" + QFileInfo(argv[0]).fileName() + "-XXXXXX");
    if (!root.isValid()) return 1;
    for (const char* name :
         {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"}) {
        const QString path = root.filePath(name);
        QDir().mkpath(path);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);   // a runtime folder's
        qputenv(name, QFile::encodeName(path));
    }
    QApplication app(argc, argv);
    QApplication::setAttribute(Qt::AA_Use96Dpi, true);   // as QTEST_MAIN does: pictures measured in pixels
    Test test;
    return QTest::qExec(&test, argc, argv);
}
#define WINDOW_TEST_MAIN(Test) \
    int main(int argc, char** argv) { return jv::uitest::RunWindowTest<Test>(argc, argv); }

// Runs open, which opens a modal dialog of type T and waits in it, and hands the dialog to answer once it is
// up. Fails the test, at the caller's line, when no such dialog came or when it was still open five seconds
// after the answer; it is then closed so that open returns. True when all went well.
template <typename T>
bool WhileOpen(const std::function<void()>& open, const std::function<void(T*)>& answer,
               std::source_location at = std::source_location::current()) {
    QPointer<T> dialog;
    bool came = false, stuck = false;
    QDeadlineTimer deadline(QDeadlineTimer::Forever);   // until the answer has been given
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        if (!came && (dialog = qobject_cast<T*>(QApplication::activeModalWidget()))) {
            came = true;
            answer(dialog);
            deadline.setRemainingTime(5000);
        } else if (dialog && dialog->isVisible() && deadline.hasExpired()) {
            stuck = true;
            dialog->reject();
        }
    });
    poll.start(10);
    open();
    const QByteArray name = T::staticMetaObject.className();
    const QByteArray problem = came ? " still open after its answer; closed" : " never opened";
    if (!came || stuck) QTest::qFail(name + problem, at.file_name(), at.line());
    return came && !stuck;
}

// A temporary program folder holding the shipped data files.
class ProgramFolder {
public:
    explicit ProgramFolder(bool withSchemes = true) {
        const QDir data(JARLSVAKT_DATA_DIR);
        for (const QString& name : data.entryList(QDir::Files))
            if (withSchemes || name != "all.col") QFile::copy(data.filePath(name), dir_.filePath(name));
    }
    std::string Path() const { return dir_.path().toStdString() + "/"; }
    std::string File(const std::string& name) const { return Path() + name; }
    bool Exists(const std::string& name) const { return QFile::exists(QString::fromStdString(File(name))); }
    std::string Read(const std::string& name) const {
        QFile file(QString::fromStdString(File(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "";
    }
    void Write(const std::string& name, const std::string& content) const {
        QFile file(QString::fromStdString(File(name)));
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate)) file.write(content.c_str());
    }

private:
    QTemporaryDir dir_;
};

// The questions the window put, and the answers it gets: one kept for a question, else Ok (1).
struct Questions {
    std::vector<std::pair<std::string, std::string>> Asked;   // text, style
    std::map<std::string, int> AnswerTo;

    void AnswerFor(ui::MainWindow& window) {
        window.Answerer = [this](const std::string& text, const std::string& style) {
            Asked.emplace_back(text, style);
            return AnswerTo.contains(text) ? AnswerTo[text] : 1;
        };
    }
    bool WasAsked(const std::string& text) const {
        return std::any_of(Asked.begin(), Asked.end(), [&](const auto& q) { return q.first == text; });
    }
};

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

// A window (MainWindow or one made for a test) started in its own program folder, shown, its questions
// answered from a script, its files chosen from a list and its pauses cut to nothing.
template <typename Window = ui::MainWindow>
struct Started {
    ProgramFolder folder;
    Window window{folder.Path()};
    Questions questions;
    std::string NextFile;   // the file dialog's next answer, in the program folder; "" cancels

    explicit Started(int pauseLimit = 0) {
        questions.AnswerFor(window);
        window.FileChooser = [this](FileMode, const std::string&) { return std::exchange(NextFile, ""); };
        window.PauseLimit = pauseLimit;
        window.Start();
        window.show();
        (void)QTest::qWaitForWindowExposed(&window);
    }
    template <typename T = QAbstractButton>
    T* Find(const char* name) { return window.template findChild<T*>(name); }
    Game& g() { return window.game(); }
    ui::BoardPicture* Board() { return window.Board(); }
    void Press(const char* name) { QTest::mouseClick(Find<QWidget>(name), Qt::LeftButton); }
    void Drag(Square from, Square to) { uitest::Drag(Board(), from, to); }
    // One mouse event at the centre of a square.
    void Send(QEvent::Type type, int col, int row, Qt::MouseButtons held) {
        SendMouse(Board(), type, Board()->SquareCentre(col, row), held);
    }
    void Click(int col, int row) {
        Send(QEvent::MouseButtonPress, col, row, Qt::LeftButton);
        Send(QEvent::MouseButtonRelease, col, row, Qt::NoButton);
    }
    // The event log's lines, and how many of them contain part.
    std::vector<std::string> Log() { return Lines(Find<QListWidget>("EventLog")); }
    int Logged(const std::string& part) {
        const auto log = Log();
        return int(std::count_if(log.begin(), log.end(), [&](const std::string& l) { return l.find(part) != std::string::npos; }));
    }
    QImage Picture() { return Board()->Pixmap().toImage(); }
    QColor At(int col, int row) { return Picture().pixelColor(Board()->SquareCentre(col, row)); }
    // Loads a layout written to the program folder through the load command.
    void Load(const std::string& name, const std::string& content) {
        folder.Write(name, content);
        NextFile = name;
        Press("cmdload");
    }
};
using StartedWindow = Started<>;

}  // namespace jv::uitest

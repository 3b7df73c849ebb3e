#include <QApplication>
#include <QStyleFactory>
#include <cstdlib>
#include <iostream>

#include "ui/MainWindow.h"

int main(int argc, char** argv) {
    const auto unset = [](const char* name) {
        const char* value = std::getenv(name);
        return value == nullptr || *value == '\0';
    };
    if (unset("DISPLAY") && unset("WAYLAND_DISPLAY") && unset("QT_QPA_PLATFORM")) {
        std::cerr << "JarlsVakt needs a display: none is set (DISPLAY is empty); run it on a desktop "
                     "or under xvfb-run.\n";
        return 1;
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName("JarlsVakt");
    // One look on every desktop; the colour scheme paints it.
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    jv::ui::MainWindow window;
    // Without "all.col" the program has said so and ends here.
    if (!window.Start()) return 1;
    window.show();
    return app.exec();
}

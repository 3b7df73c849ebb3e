#include <QApplication>
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
    jv::ui::MainWindow window;
    window.show();
    return app.exec();
}

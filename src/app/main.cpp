#include "shell/application.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    return modRunProgram(app);
}

#include <QTextStream>

// The main window joins this program in its own change; until then the headless tool
// desko40-cli does the program's work.
int main() {
    QTextStream(stderr) << "desko40: the main window is not built yet; use desko40-cli\n";
    return 1;
}

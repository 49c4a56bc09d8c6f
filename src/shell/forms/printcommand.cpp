// The print command of the main window, and a single report or export from the File menu.

#include "printing/printcommand.h"
#include "core/forms/formkit.h"
#include "printing/printview.h"
#include "shell/forms/frmMain.h"

#include <QLabel>

namespace {

// The main window as the print command sees it.
class MainPrintView final : public PrintView {
public:
    explicit MainPrintView(frmMain& main) : main_(main) {}

    void beginPrinting(const QString& status) override { main_.beginLongCommand(status); }
    void showPrintStatus(const QString& status) override { main_.labStatus->setText(status); }
    void endPrinting() override { main_.modLeaveBusyState(); }

private:
    frmMain& main_;
};

}  // namespace

void frmMain::cmdPrint_Click() {
    runLongCommand([this] {
        MainPrintView view(*this);
        printSchedule(ws_, ctx_, view);
    });
}

// The boxes show only the one output while its command runs, then what the user had chosen.
void frmMain::modPrintIndividualFormat(int position) {
    runLongCommand([this, position] {
        const QString kept = lightOneOutput(ws_, position);
        showPrintAndEngine();
        cmdPrint_Click();
        cmdExport_Click();
        restoreOutputs(ws_, kept);
        showPrintAndEngine();
    });
}

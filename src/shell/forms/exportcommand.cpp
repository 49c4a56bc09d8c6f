// The export command of the main window: the pre-flight and the channels run in the export's
// logic, and the window shows its status frame, unticks the boxes the pre-flight refuses and
// follows the meeting requests with the progress bar.

#include "export/exportcommand.h"
#include "core/forms/formkit.h"
#include "core/services/context.h"
#include "export/exportview.h"
#include "export/mailsession.h"
#include "export/smtptransport.h"
#include "shell/forms/frmMain.h"
#include "shell/forms/monthstepper.h"

#include <QCheckBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>

#include <memory>

namespace {

class WindowExportView final : public ExportView {
public:
    explicit WindowExportView(frmMain& main) : main_(main) {}

    void untickExportBox(int box) override {
        main_.chkPrint[static_cast<std::size_t>(box)]->setCheckState(Qt::Unchecked);
    }
    void beginExport(const QString& status) override {
        main_.beginLongCommand(status);
        // Once would do; the command has always entered the busy state three times.
        main_.modEnterBusyState();
        main_.modEnterBusyState();
        doEvents();
    }
    void showStatus(const QString& text) override {
        main_.labStatus->setText(text);
        doEvents();
    }
    void showProgressBar(const QString& text) override {
        main_.labStatus->clear();
        main_.labStatusHigh->setText(text);
        showProgress(0.0);
        main_.picStatus->show();
        doEvents();
        main_.show();
    }
    void showProgress(double share) override {
        main_.showProgress(share);
        doEvents();
    }
    void hideProgressBar() override {
        main_.picStatus->hide();
        showProgress(0.0);
    }
    void endExport() override {
        main_.fraDate->show();
        main_.fraStatus->hide();
        main_.vscDate->setEnabled(true);
        main_.labDate->show();
        main_.modLeaveBusyState();
        doEvents();
        showNormalPointer();
    }

private:
    frmMain& main_;
};

}  // namespace

void frmMain::cmdExport_Click() {
    runLongCommand([this] {
        WindowExportView view(*this);
        MailSession session([](const MailAccount& account, const QString& password) {
            return std::make_unique<SmtpTransport>(account, password);
        });
        ::cmdExport(ws_, ctx_, view, session);
    });
}

#include "fuzzing.h"

#include "export/smtptransport.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <thread>

namespace {

constexpr int kPatienceMs = 2000;

// A mail server on this machine that answers what the input says, whatever it is told.
class ScriptedServer {
public:
    ScriptedServer() : listener_(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        auto* any = reinterpret_cast<sockaddr*>(&address);
        require(bind(listener_, any, length) == 0 && listen(listener_, 4) == 0 &&
                    getsockname(listener_, any, &length) == 0,
                "a server listens on this machine");
        port_ = ntohs(address.sin_port);
    }
    int port() const { return port_; }

    // Takes the next connection, sends all the replies, and listens until the client goes.
    void serveOnce(const QByteArray& replies) const {
        pollfd waiting{listener_, POLLIN, 0};
        if (poll(&waiting, 1, kPatienceMs) <= 0) {
            return;
        }
        const int client = accept(listener_, nullptr, nullptr);
        send(client, replies.constData(), static_cast<std::size_t>(replies.size()), MSG_NOSIGNAL);
        shutdown(client, SHUT_WR);
        std::array<char, 4096> told{};
        for (pollfd reading{client, POLLIN, 0};
             poll(&reading, 1, kPatienceMs) > 0 && read(client, told.data(), told.size()) > 0;) {
        }
        close(client);
    }

private:
    int listener_;
    int port_ = 0;
};

}  // namespace

// The mail server's replies, after a first line that is the account's password: whatever the
// server answers, a message fails or goes without harm, and the password never shows in the
// failure that the results and the log would tell.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScriptedServer server;
    const QByteArray bytes = inputBytes(data, size);
    const qsizetype lineEnd = bytes.contains('\n') ? bytes.indexOf('\n') : bytes.size();
    const QString password = QString::fromUtf8(bytes.left(lineEnd));
    const QByteArray replies = bytes.mid(lineEnd + 1);
    MailAccount account;
    account.host = QStringLiteral("127.0.0.1");
    account.port = server.port();
    account.auth = true;
    account.user = QStringLiteral("desk");
    account.timeout = 2;
    std::thread serving([&] { server.serveOnce(replies); });
    std::optional<SendFailure> failure;
    {
        SmtpTransport transport(account, password);
        failure =
            transport.send(QByteArrayLiteral("Subject: May\r\n\r\nShifts\r\n"),
                           QStringLiteral("desk@example.org"), QStringLiteral("ann@example.org"));
    }
    serving.join();
    require(!failure || password.isEmpty() || !failure->description.contains(password),
            "the password never shows in a failure");
    return 0;
}

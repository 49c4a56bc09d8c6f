// The export's channels on January 2027, six shifts of five agents every day (930 positions),
// dealt in turn to the agents of the office, every agent with an address:
//
//  Send/Mail     100 agents, one mail each, to a mail server on 127.0.0.1 over one connection.
//  Send/Requests 100 agents, a meeting request for each of the 930 positions, to the same
//                server; the time for 2,000 requests follows from the rate.
//  CreatorFile   1,000 agents, the Calendar Creator file written to disk.
//
// The mail server is a minimal one in this program, on a thread of its own, that takes every
// message and answers at once, so that the figures are the export's own.

#include "core/model/workspace.h"
#include "core/services/textfile.h"
#include "export/calendarcreator.h"
#include "export/emailexport.h"
#include "export/exportview.h"
#include "export/mailsession.h"
#include "export/outlookexport.h"
#include "export/smtptransport.h"
#include "fakes.h"
#include "offices.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <string>
#include <thread>

namespace {

// Answers every command of one client after another: 250 to all but DATA (354, then 250
// once the message has ended) and QUIT (221).
class LoopbackMailServer {
public:
    LoopbackMailServer() {
        listener_ = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        ::bind(listener_, reinterpret_cast<sockaddr*>(&address), sizeof address);
        ::listen(listener_, 4);
        socklen_t length = sizeof address;
        ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &length);
        port = ntohs(address.sin_port);
        thread_ = std::thread([this] { serve(); });
    }
    ~LoopbackMailServer() {
        stopping_ = true;
        ::shutdown(listener_, SHUT_RDWR);
        ::close(listener_);
        thread_.join();
    }
    int port = 0;

private:
    void serve() {
        while (!stopping_) {
            const int client = ::accept(listener_, nullptr, nullptr);
            if (client < 0) {
                return;
            }
            converse(client);
            ::close(client);
        }
    }
    static void say(int client, const char* reply) {
        ::send(client, reply, std::char_traits<char>::length(reply), MSG_NOSIGNAL);
    }
    static void converse(int client) {
        say(client, "220 bench\r\n");
        std::string pending;
        bool inData = false;
        char buffer[65536];
        for (ssize_t got; (got = ::recv(client, buffer, sizeof buffer, 0)) > 0;) {
            pending.append(buffer, static_cast<std::size_t>(got));
            for (std::size_t end; (end = pending.find("\r\n")) != std::string::npos;) {
                const std::string line = pending.substr(0, end);
                pending.erase(0, end + 2);
                if (inData) {
                    inData = line != ".";
                    if (!inData) {
                        say(client, "250 queued\r\n");
                    }
                } else if (line.rfind("DATA", 0) == 0) {
                    inData = true;
                    say(client, "354 go on\r\n");
                } else if (line.rfind("QUIT", 0) == 0) {
                    say(client, "221 bye\r\n");
                    return;
                } else {
                    say(client, "250 ok\r\n");
                }
            }
        }
    }

    int listener_ = -1;
    std::atomic<bool> stopping_{false};
    std::thread thread_;
};

// The office of the given size, its log lost, its mail account the server's.
struct Office {
    Office(int agents, int port) {
        makeOffice(ws, 2027, 1, agents, home.path());
        loseLogLines(ws, home);
        setTable(ws, 6, 5);
        for (int day = 0; day < kWeekdays; ++day) {
            for (int shift = 1; shift <= 6; ++shift) {
                ws.gShiftText[day][shift] = QStringLiteral("%1am-%2am").arg(shift).arg(shift + 1);
            }
        }
        dealInTurn(ws);
        for (int agent = 1; agent <= agents; ++agent) {
            ws.gAgentEmail[agent] = QStringLiteral("agent%1@example.org").arg(agent);
        }
        ws.gEmailBody = QStringLiteral("You have been assigned the following shifts:");
        const QString config = home.filePath(QStringLiteral("msmtprc"));
        writeTextFile(config, QStringLiteral("account office\nhost 127.0.0.1\nport %1\n"
                                             "from desk@example.org\n")
                                  .arg(port));
        s.ctx.launch.mailConfig = config;
        s.ctx.env.gMapiProfile = QStringLiteral("office");
    }
    MailSession session() const {
        return MailSession([](const MailAccount& account, const QString& password) {
            return std::make_unique<SmtpTransport>(account, password);
        });
    }
    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    HeadlessExportView view;
};

using Channel = void (*)(Workspace&, Context&, ExportView&, MailSession&);

// One export through the channel per iteration, each with a session and a connection of
// its own, as each press of the button has.
void Send(benchmark::State& state, Channel channel, int messages) {
    LoopbackMailServer server;
    Office office(100, server.port);
    for (auto _ : state) {
        MailSession session = office.session();
        channel(office.ws, office.s.ctx, office.view, session);
    }
    state.SetItemsProcessed(state.iterations() * messages);
}

void CreatorFile(benchmark::State& state) {
    Office office(1000, 1);
    const QString path = office.home.filePath(QStringLiteral("2027 January.csv"));
    for (auto _ : state) {
        exportToCalendarCreator(office.ws, office.s.ctx, office.view, path);
    }
    state.SetItemsProcessed(state.iterations() * 930);
}

}  // namespace

BENCHMARK_CAPTURE(Send, Mail, exportToEmail, 100)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Send, Requests, exportToOutlook, 930)->Unit(benchmark::kMillisecond);
BENCHMARK(CreatorFile)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();

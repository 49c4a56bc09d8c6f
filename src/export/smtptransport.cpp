#include "export/smtptransport.h"

#include <curl/curl.h>

#include <cstring>

static_assert(CURL_ERROR_SIZE <= 256, "libcurl's error words must fit their buffer");

namespace {

struct Upload {
    const QByteArray& message;
    qsizetype at = 0;
};

size_t readMessage(char* buffer, size_t size, size_t count, void* user) {
    auto* upload = static_cast<Upload*>(user);
    const auto length = std::min<qsizetype>(static_cast<qsizetype>(size * count),
                                            upload->message.size() - upload->at);
    std::memcpy(buffer, upload->message.constData() + upload->at, static_cast<size_t>(length));
    upload->at += length;
    return static_cast<size_t>(length);
}

// Keeps the server's first refusal of a message, a reply beginning with 4 or 5. Only what
// comes in is looked at: what goes out carries the login.
int keepServerRefusal(CURL*, curl_infotype type, char* data, size_t size, void* user) {
    auto* refusal = static_cast<QByteArray*>(user);
    const QByteArray line = QByteArray(data, static_cast<qsizetype>(size)).trimmed();
    if (type == CURLINFO_HEADER_IN && refusal->isEmpty() &&
        (line.startsWith('4') || line.startsWith('5'))) {
        *refusal = line;
    }
    return 0;
}

bool onThisMachine(const QString& host) {
    return host == QLatin1String("localhost") || host.startsWith(QLatin1String("127.")) ||
           host == QLatin1String("::1") || host == QLatin1String("[::1]");
}

QByteArray urlOf(const MailAccount& account) {
    QString host = account.host;
    if (host.contains(QLatin1Char(':')) && !host.startsWith(QLatin1Char('['))) {
        host = QLatin1Char('[') + host + QLatin1Char(']');
    }
    const bool implicitTls = account.tls && !account.starttls;
    return (implicitTls ? QByteArrayLiteral("smtps://") : QByteArrayLiteral("smtp://")) +
           host.toUtf8() + ':' + QByteArray::number(account.effectivePort());
}

// Failures that every later message would meet again the same way.
bool concernsEveryMessage(CURLcode code) {
    switch (code) {
        case CURLE_COULDNT_RESOLVE_HOST:
        case CURLE_COULDNT_CONNECT:
        case CURLE_OPERATION_TIMEDOUT:
        case CURLE_SSL_CONNECT_ERROR:
        case CURLE_PEER_FAILED_VERIFICATION:
        case CURLE_USE_SSL_FAILED:
        case CURLE_LOGIN_DENIED:
            return true;
        default:
            return false;
    }
}

// The text with every showing of the password masked. The mask's character is one the
// password lacks, so that no mask spells the password or completes it with the characters
// beside it; a password that has them all keeps the server's words out altogether.
QString masked(const QString& text, const QString& password) {
    if (password.isEmpty() || !text.contains(password)) {
        return text;
    }
    for (const char16_t mark : {u'*', u'#', u'x'}) {
        if (!password.contains(QChar(mark))) {
            return QString(text).replace(password, QString(8, QChar(mark)));
        }
    }
    return QStringLiteral("The server's reply repeated the password");
}

}  // namespace

SmtpTransport::SmtpTransport(const MailAccount& account, QString password)
    : curl_(curl_easy_init()), password_(std::move(password)) {
    if (curl_ == nullptr) {
        unreachable_ = SendFailure{CURLE_FAILED_INIT, QStringLiteral("The mail library failed")};
        return;
    }
    if (!account.tls && !onThisMachine(account.host)) {
        unreachable_ =
            SendFailure{kPlainToRemote, QStringLiteral("The mail account has TLS off, which is "
                                                       "allowed only for a server on this "
                                                       "machine")};
    }
    CURL* curl = curl_;
    const long seconds = account.timeout > 0 ? account.timeout : kDefaultTimeoutSeconds;
    curl_easy_setopt(curl, CURLOPT_URL, urlOf(account).constData());
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT, seconds);
    curl_easy_setopt(curl, CURLOPT_TIMEOUT, seconds);
    curl_easy_setopt(curl, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(curl, CURLOPT_READFUNCTION, readMessage);
    curl_easy_setopt(curl, CURLOPT_ERRORBUFFER, errors_.data());
    curl_easy_setopt(curl, CURLOPT_VERBOSE, 1L);
    curl_easy_setopt(curl, CURLOPT_DEBUGFUNCTION, keepServerRefusal);
    curl_easy_setopt(curl, CURLOPT_DEBUGDATA, &refusal_);
    if (account.tls && account.starttls) {
        curl_easy_setopt(curl, CURLOPT_USE_SSL, static_cast<long>(CURLUSESSL_ALL));
    }
    // "system" is the system's certificates, which the library trusts unless told otherwise.
    if (!account.trustFile.isEmpty() && account.trustFile != QStringLiteral("system")) {
        curl_easy_setopt(curl, CURLOPT_CAINFO, account.trustFile.toLocal8Bit().constData());
    }
    if (!account.certCheck) {
        curl_easy_setopt(curl, CURLOPT_SSL_VERIFYPEER, 0L);
        curl_easy_setopt(curl, CURLOPT_SSL_VERIFYHOST, 0L);
    }
    if (account.auth) {
        curl_easy_setopt(curl, CURLOPT_USERNAME, account.user.toUtf8().constData());
        curl_easy_setopt(curl, CURLOPT_PASSWORD, password_.toUtf8().constData());
    }
}

SmtpTransport::~SmtpTransport() {
    // Says goodbye to the server on the open connection.
    curl_easy_cleanup(curl_);
}

std::optional<SendFailure> SmtpTransport::send(const QByteArray& message, const QString& from,
                                               const QString& to) {
    if (unreachable_) {
        return unreachable_;
    }
    CURL* curl = curl_;
    Upload upload{message};
    const QByteArray sender = '<' + from.toUtf8() + '>';
    curl_slist* recipients = curl_slist_append(nullptr, ('<' + to.toUtf8() + '>').constData());
    curl_easy_setopt(curl, CURLOPT_MAIL_FROM, sender.constData());
    curl_easy_setopt(curl, CURLOPT_MAIL_RCPT, recipients);
    curl_easy_setopt(curl, CURLOPT_READDATA, &upload);
    refusal_.clear();
    errors_[0] = '\0';
    const CURLcode code = curl_easy_perform(curl);
    curl_easy_setopt(curl, CURLOPT_MAIL_RCPT, nullptr);
    curl_slist_free_all(recipients);
    if (code == CURLE_OK) {
        return std::nullopt;
    }
    return failureOf(code);
}

std::optional<SendFailure> SmtpTransport::failureOf(int code) {
    const auto curlCode = static_cast<CURLcode>(code);
    // The server's own words where it refused: "550 5.1.1 No such user".
    SendFailure failure;
    if (const int reply = refusal_.left(3).toInt(); reply >= 400 && reply <= 599) {
        failure = {reply, QString::fromUtf8(refusal_)};
    } else {
        failure = {code, QString::fromUtf8(errors_[0] != '\0' ? errors_.data()
                                                              : curl_easy_strerror(curlCode))};
    }
    // A server may repeat what it was told; the password stays out of every report.
    failure.description = masked(failure.description, password_);
    if (concernsEveryMessage(curlCode)) {
        unreachable_ = failure;
    }
    return failure;
}

#include "fuzzing.h"

#include "core/services/mailaccounts.h"
#include "core/services/textfile.h"

// The msmtp configuration: the account that the machine's facts name as the mail profile is
// one that the export can open, with a host.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes = inputBytes(data, size);
    parseMailConfig(decodeText(bytes));
    const QString path = scratchFile(QStringLiteral("msmtprc"), bytes);
    const std::optional<MailAccount> account = defaultMailAccount(path);
    require(!account || !account->host.isEmpty(), "the default account has a host");
    Environment facts;
    readMailFacts(facts, path);
    require(facts.gMapiProfile.isEmpty() == !account, "the mail profile is the default account");
    if (account) {
        const std::optional<MailAccount> named = mailAccountNamed(path, facts.gMapiProfile);
        require(named && named->host == account->host, "the mail profile opens its account");
    }
    return 0;
}

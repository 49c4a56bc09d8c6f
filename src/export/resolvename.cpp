#include "export/resolvename.h"

#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/log.h"
#include "export/addressbook.h"

#include <QStringList>

QString modResolveName(const Workspace& ws, Context& ctx, const QString& name) {
    const std::vector<AddressEntry> found =
        matchingEntries(readAddressBook(ctx.launch.addressBook), name);
    if (found.size() <= 1) {
        return found.empty() ? QString() : found.front().address;
    }
    QStringList choices;
    for (const AddressEntry& entry : found) {
        choices.append(entry.fullName + QStringLiteral("  <") + entry.address + QLatin1Char('>'));
    }
    const std::optional<int> chosen = ctx.dialogs.chooseItem(
        QStringLiteral("More than one entry of the address book matches \"") + name +
            QStringLiteral("\".  Choose the address to use:"),
        choices);
    if (!chosen || *chosen < 0 || *chosen >= static_cast<int>(found.size())) {
        modStatus(ws, ctx, QStringLiteral("Could not resolve MAPI recipient name"));
        return QString();
    }
    return found[static_cast<std::size_t>(*chosen)].address;
}

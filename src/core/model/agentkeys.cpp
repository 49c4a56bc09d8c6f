#include "core/model/agentkeys.h"

#include "core/model/workspace.h"

#include <QHash>
#include <QSet>

#include <vector>

namespace {

constexpr int kLongestSuffix = 1000;

// Gives each agent its name as key, and to an agent whose name others share a suffix of
// the first `length` characters of its other name. The suffix length is one counter for
// the whole rebuild: it only ever grows, so later keys of any name take as many
// characters as the hardest case before them needed. The set compared for an agent is the
// others of the same name plus an empty name in first place; the length grows until all
// of their prefixes differ, or beyond 1000 characters.
void buildKeys(const std::vector<QString>& names, const std::vector<QString>& others,
               std::vector<QString>& keys, int agentCount, int& length) {
    QHash<QString, std::vector<int>> byName;
    for (int i = 1; i <= agentCount; ++i) {
        byName[names[i]].push_back(i);
    }
    for (int i = 1; i <= agentCount; ++i) {
        keys[i] = names[i];
        const std::vector<int>& sameName = byName[names[i]];
        if (sameName.size() < 2) {
            continue;
        }
        const auto prefixesDiffer = [&] {
            QSet<QString> seen{QString()};
            for (const int j : sameName) {
                if (j == i) {
                    continue;
                }
                const QString prefix = others[j].left(length);
                if (seen.contains(prefix)) {
                    return false;
                }
                seen.insert(prefix);
            }
            return true;
        };
        while (length <= kLongestSuffix && !prefixesDiffer()) {
            ++length;
        }
        keys[i] += QStringLiteral(" (") + others[i].left(length) + QStringLiteral(".)");
    }
}

}  // namespace

void modBuildAgentKeys(Workspace& ws) {
    const auto size = static_cast<std::size_t>(ws.gAgentCount) + 1;
    ws.gAgentKey.assign(size, QString());
    ws.gAgentFirstKey.assign(size, QString());
    int length = 0;
    buildKeys(ws.gAgentFirst, ws.gAgentLast, ws.gAgentFirstKey, ws.gAgentCount, length);
    buildKeys(ws.gAgentLast, ws.gAgentFirst, ws.gAgentKey, ws.gAgentCount, length);
}

QString modGetDesiredName(const Workspace& ws, const QString& cell) {
    if (ws.gCalendarUseFirstName != QStringLiteral("1")) {
        return cell;
    }
    for (int i = 1; i <= ws.gAgentCount; ++i) {
        if (ws.gAgentKey[i] == cell) {
            return ws.gAgentFirstKey[i];
        }
    }
    return QString();
}

#include "generation/engines.h"

#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "generation/positionwalk.h"

#include <algorithm>
#include <vector>

namespace {

// Draws since the last reset after which the whole deck is shuffled back in: a deal stuck
// on the last few agents of a round frees itself this way.
constexpr int kDrawsBeforeReshuffle = 1000;
// Draws for one position after which the engine gives up and takes the last draw as it is,
// which happens only when nobody at all can be placed there.
constexpr int kDrawsBeforeGivingUp = 10000;

}  // namespace

void modGenerateShuffled(Workspace& ws, Context& ctx, int& drawCounter) {
    const int agents = ws.gAgentCount;
    // 1 for the agents dealt in the current round; a round ends by clearing it.
    std::vector<char> agentPick(static_cast<std::size_t>(std::max(agents, 0)) + 1, 0);
    const auto newRound = [&agentPick] { std::fill(agentPick.begin(), agentPick.end(), 0); };

    modStatus(ws, ctx, QStringLiteral("Generating a schedule using the Shuffled engine"));
    std::fill(ws.gSchedule.begin(), ws.gSchedule.end(), QString());
    if (agents < 1) {
        return;  // nobody to draw: the positions stay empty
    }

    const bool sameDayRule = ws.gAgentRatio >= 1;
    const bool adjacentDayRule = ws.gAgentRatio >= 2;
    // Nothing but the deck changes while one position is being dealt, so whether an agent
    // fits it is worked out once per position, at the agent's first draw: a position that
    // nobody fits costs ten thousand draws, not ten thousand looks through two days.
    std::vector<int> judgedAt(agentPick.size(), 0);
    std::vector<char> fits(agentPick.size(), 0);
    int position = 0;
    const auto fitsPosition = [&](int agent, int day, int shift) {
        if (judgedAt[agent] != position) {
            judgedAt[agent] = position;
            const QString& key = ws.gAgentKey[agent];
            // The 1st looks back at day 0, which like a holiday holds nothing: the month
            // before is never looked at.
            fits[agent] = !agentBarred(ws, agent, day, shift) &&
                          !(sameDayRule && dayHolds(ws, day, key)) &&
                          !(adjacentDayRule && dayHolds(ws, day - 1, key));
        }
        return fits[agent] == 1;
    };

    int dealt = 0;
    const int days = ws.currentMonthDays();
    for (int day = 1; day <= days; ++day) {
        if (ws.gHoliday[day] == 1) {
            continue;
        }
        forEachPosition(ws, day, ShiftOrder::Upward, [&](int shift, int slot) {
            ++position;
            int agent = 0;
            for (int tries = 1;; ++tries) {
                agent = ctx.random.drawAgent(agents);
                if (++drawCounter > kDrawsBeforeReshuffle) {
                    // The draw that reshuffles is thrown away but still counts as a try.
                    newRound();
                    drawCounter = 0;
                    continue;
                }
                if (tries > kDrawsBeforeGivingUp) {
                    break;  // placed whatever the rules say, and not counted as dealt
                }
                if (agentPick[agent] == 1 || !fitsPosition(agent, day, shift)) {
                    continue;
                }
                ++dealt;
                break;
            }
            agentPick[agent] = 1;
            ws.schedule(day, shift, slot) = ws.gAgentKey[agent];
            if (dealt == agents) {
                newRound();
                dealt = 0;
            }
        });
    }
}

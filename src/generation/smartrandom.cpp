#include "generation/engines.h"

#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"

#include <QHash>
#include <QString>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <vector>

// SmartRandom scores every agent for every position, and most of a score counts cells of the
// month that hold the agent's key: in the same shift, the same day, the days before, the days
// close by, the same weekday. Scanning the grid for each of those counts, for every agent at
// every position, is what would make the engine slow, so it keeps an index of the grid
// instead: each distinct key text gets a number, each cell remembers the number of the key
// it holds, and each key keeps how many cells of each day hold it. Every write goes through
// the index, so the index always says what the cells say, whatever the grid held on entry
// and whatever the keys are: cells compare by text, so two agents with one key both hold its
// cells, and an agent whose key is the empty text holds every empty cell.
//
// Scores are doubles, compared strictly, with ties going to the first agent in the rotation,
// so a score must come out to the last bit as a scan of the grid would add it up. The
// whole-number terms are summed in integers, which is exact (their sums stay far below 2^53,
// under which doubles hold whole numbers exactly). A term that adds a fraction for each cell
// found is added one cell at a time, in the order in which a scan meets the cells: day by
// day upward, as often as the day has cells holding the key. The whole-number amounts that
// follow a fraction are added the same way, since from then on every addition may round.

namespace {

constexpr int kDays = kMonthDaySlots;  // days 0..31 of the index
constexpr double kNoBestScore = 1e15;
constexpr double kNoBestExchange = 1000000000;
constexpr double kNoRestrictedShifts = 10000000;
constexpr double kMostlyRestricted = 0.4;
constexpr int kRepairRounds = 40;

// Score terms of a position, in order of priority.
constexpr std::int64_t kAwayOrRestricted = 100000000000;
constexpr std::int64_t kTwiceInShift = 1000000000;
constexpr std::int64_t kTwiceInDay = 30000000;
constexpr std::int64_t kPerPositionHeld = 750;
constexpr double kOverload = 30000000;

// Score terms of an exchange.
constexpr std::int64_t kExchangeInShift = 100000;
constexpr std::int64_t kExchangeInDay = 10000;

bool isWeekend(int weekday) {
    return weekday == 0 || weekday == 6;
}

// The first day of the month with the same weekday as day.
int firstSameWeekday(int day) {
    return day % 7 == 0 ? 7 : day % 7;
}

// Days first..last as bits of a day mask; empty when last < first.
std::uint32_t dayRange(int first, int last) {
    if (last < first) {
        return 0;
    }
    const std::uint64_t upTo = (std::uint64_t{1} << (last + 1)) - 1;
    const std::uint64_t below = (std::uint64_t{1} << first) - 1;
    return static_cast<std::uint32_t>(upTo & ~below);
}

// The month's grid with the index of who holds what.
class Grid {
public:
    explicit Grid(Workspace& ws) : ws_(ws), days_(ws.currentMonthDays()) {
        for (int day = 0; day < kDays; ++day) {
            weekday_[day] = ws.weekdayOf(day);
        }
        for (int w = 0; w < kWeekdays; ++w) {
            shifts_[w] = std::clamp(ws.gShiftCount[w], 0, kMaxShift);
            for (int s = 0; s < kShiftSlots; ++s) {
                highestSlot_[w][s] = std::min(ws.gShiftAgents[w][s], kMaxSlot);
            }
        }
        QHash<QString, int> keyNumber;
        const int agents = ws.gAgentCount;
        agentKey_.assign(static_cast<std::size_t>(agents) + 1, -1);
        for (int a = 1; a <= agents; ++a) {
            auto known = keyNumber.constFind(ws.gAgentKey[a]);
            if (known == keyNumber.constEnd()) {
                known = keyNumber.insert(ws.gAgentKey[a], static_cast<int>(keyNumber.size()));
            }
            agentKey_[a] = *known;
        }
        agentKey_[0] = keyNumber.value(ws.gAgentKey[0], -1);
        keys_ = static_cast<int>(keyNumber.size());
        for (int cell = 0; cell < kScheduleCells; ++cell) {
            cellKey_[cell] = keyNumber.value(ws.gSchedule[cell], -1);
        }
        perDay_.assign(static_cast<std::size_t>(keys_) * kDays, 0);
        daysHeld_.assign(static_cast<std::size_t>(keys_), 0);
        for (int day = 0; day < kDays; ++day) {
            forEachCell(day, [&](int shift, int slot) { count(keyAt(day, shift, slot), day, 1); });
        }
    }

    int days() const { return days_; }
    int keys() const { return keys_; }
    int weekday(int day) const { return weekday_[day]; }
    int shifts(int weekday) const { return shifts_[weekday]; }
    int highestSlot(int weekday, int shift) const { return highestSlot_[weekday][shift]; }
    int keyOf(int agent) const { return agentKey_[agent]; }
    int keyAt(int day, int shift, int slot) const {
        return cellKey_[scheduleIndex(day, shift, slot)];
    }
    // Cells of the day, by its weekday's table, that hold the key.
    int heldOn(int key, int day) const { return perDay_[key * kDays + day]; }
    // The days on which the key holds a cell, as a day mask.
    std::uint32_t daysHeld(int key) const { return daysHeld_[key]; }
    // Cells of a shift of the day that hold the key.
    int heldInShift(int key, int day, int shift) const {
        int found = 0;
        for (int slot = 0; slot <= highestSlot(weekday(day), shift); ++slot) {
            found += keyAt(day, shift, slot) == key ? 1 : 0;
        }
        return found;
    }
    // All cells of the day by its weekday's table.
    int cellsOn(int day) const {
        int cells = 0;
        forEachCell(day, [&](int, int) { ++cells; });
        return cells;
    }

    // Calls visit(shift, slot) for each cell of the day, shift by shift, slots upward.
    template <typename Visit>
    void forEachCell(int day, Visit&& visit) const {
        const int w = weekday(day);
        for (int shift = 1; shift <= shifts(w); ++shift) {
            for (int slot = 0; slot <= highestSlot(w, shift); ++slot) {
                visit(shift, slot);
            }
        }
    }

    // Writes the agent's key to a cell of days 0..31.
    void write(int day, int shift, int slot, int agent) {
        ws_.schedule(day, shift, slot) = ws_.gAgentKey[agent];
        const int cell = scheduleIndex(day, shift, slot);
        const int before = cellKey_[cell];
        const int after = agentKey_[agent];
        if (before == after) {
            return;
        }
        cellKey_[cell] = after;
        const int w = weekday(day);
        if (shift >= 1 && shift <= shifts(w) && slot <= highestSlot(w, shift)) {
            count(before, day, -1);
            count(after, day, 1);
        }
    }

private:
    void count(int key, int day, int change) {
        if (key < 0) {
            return;
        }
        int& held = perDay_[key * kDays + day];
        held += change;
        if (held > 0) {
            daysHeld_[key] |= std::uint32_t{1} << day;
        } else {
            daysHeld_[key] &= ~(std::uint32_t{1} << day);
        }
    }

    Workspace& ws_;
    int days_;
    int keys_ = 0;
    std::array<int, kDays> weekday_{};
    std::array<int, kWeekdays> shifts_{};
    std::array<std::array<int, kShiftSlots>, kWeekdays> highestSlot_{};
    std::vector<int> agentKey_;
    std::array<int, kScheduleCells> cellKey_{};
    std::vector<int> perDay_;
    std::vector<std::uint32_t> daysHeld_;
};

// What the preparation works out for the agents and the month.
struct Preparation {
    int positions = 0;
    // The whole number of days in which a second position of an agent counts as close.
    int spacing = 0;
    std::vector<double> expectedLoad;
    std::vector<double> restrictedWeekendShare;
    std::vector<double> restrictedWeekdayShare;
};

Preparation prepare(const Workspace& ws, const Grid& grid) {
    const int agents = ws.gAgentCount;
    const int days = grid.days();
    Preparation p;
    for (int day = 1; day <= days; ++day) {
        if (ws.gHoliday[day] != 1) {
            p.positions += grid.cellsOn(day);
        }
    }
    p.expectedLoad.assign(static_cast<std::size_t>(agents) + 1, 0.0);
    for (int a = 1; a <= agents; ++a) {
        double away = 0;
        for (int day = 1; day <= days; ++day) {
            away += ws.gVacation[a][day] == 1 ? 1 : 0;
        }
        p.expectedLoad[a] =
            days == 0 ? away : (static_cast<double>(p.positions) / agents) * (1 - away / days);
    }

    int weekendShifts = 0;
    int weekdayShifts = 0;
    for (int w = 0; w < kWeekdays; ++w) {
        (isWeekend(w) ? weekendShifts : weekdayShifts) += grid.shifts(w);
    }
    p.restrictedWeekendShare.assign(static_cast<std::size_t>(agents) + 1, 0.0);
    p.restrictedWeekdayShare.assign(static_cast<std::size_t>(agents) + 1, 0.0);
    for (int a = 1; a <= agents; ++a) {
        double weekend = 0;
        double weekday = 0;
        for (int w = 0; w < kWeekdays; ++w) {
            for (int s = 1; s <= grid.shifts(w); ++s) {
                if (ws.gRestriction[a][w][s] == 1) {
                    (isWeekend(w) ? weekend : weekday) += 1;
                }
            }
        }
        p.restrictedWeekendShare[a] =
            weekendShifts > 0 ? weekend / weekendShifts : kNoRestrictedShifts;
        p.restrictedWeekdayShare[a] =
            weekdayShifts > 0 ? weekday / weekdayShifts : kNoRestrictedShifts;
    }
    // A month without positions, or without agents, has no share to divide by: no window.
    if (agents > 0 && p.positions > 0) {
        p.spacing =
            static_cast<int>(std::floor(0.67 * days / (static_cast<double>(p.positions) / agents)));
    }
    return p;
}

// The forward sweep: every position of the month, in order, goes to the agent with the
// lowest score, ties to the first in a rotation that starts at a random agent.
void sweep(Workspace& ws, Context& ctx, Grid& grid, const Preparation& p,
           const SmartRandomProgress& progress) {
    const int agents = ws.gAgentCount;
    const int days = grid.days();
    const int spacing = p.spacing;

    // Cells held by each key on the days before the current one.
    std::vector<std::int64_t> heldBefore(static_cast<std::size_t>(grid.keys()), 0);
    // Cells of each agent's vacation days before the current one.
    std::vector<std::int64_t> awayCellsBefore(static_cast<std::size_t>(agents) + 1, 0);
    // Per key, from the cells of the current day: held in the current shift's earlier slots,
    // held in the day's earlier shifts, and held in the cells that the overload check counts
    // as the day's load: every shift of the day but the last, then the current shift's slots
    // but its last, so that the current shift counts twice unless it ends the day. Schedules
    // made so far depend on that count, so it stays as it is.
    std::vector<int> inShift(heldBefore.size(), 0);
    std::vector<int> inDay(heldBefore.size(), 0);
    std::vector<int> walkedToday(heldBefore.size(), 0);
    std::vector<int> touched;
    std::vector<double> score(static_cast<std::size_t>(agents) + 1, 0.0);

    int done = 0;
    for (int d = 1; d <= days; ++d) {
        if (d > 1) {
            for (int key = 0; key < grid.keys(); ++key) {
                heldBefore[key] += grid.heldOn(key, d - 1);
            }
            const int cells = grid.cellsOn(d - 1);
            for (int a = 1; a <= agents; ++a) {
                awayCellsBefore[a] += ws.gVacation[a][d - 1] == 1 ? cells : 0;
            }
        }
        if (ws.gHoliday[d] == 1) {
            continue;
        }
        const int w = grid.weekday(d);
        const int shifts = grid.shifts(w);
        const std::uint32_t window = spacing > 0 ? dayRange(std::max(d - spacing, 0), d - 1) : 0;
        for (int s = 1; s <= shifts; ++s) {
            const int highest = grid.highestSlot(w, s);
            for (int k = 0; k <= highest; ++k) {
                ++done;
                const auto tally = [&](std::vector<int>& counts, int shift, int slot) {
                    const int key = grid.keyAt(d, shift, slot);
                    if (key >= 0) {
                        ++counts[key];
                        touched.push_back(key);
                    }
                };
                int awayCellsToday = 0;
                for (int t = 1; t <= shifts; ++t) {
                    for (int j = 0; j <= grid.highestSlot(w, t); ++j) {
                        if (t < s) {
                            tally(inDay, t, j);
                        }
                        if (t == s && j < k) {
                            tally(inShift, t, j);
                        }
                        if (t < shifts) {
                            tally(walkedToday, t, j);
                            ++awayCellsToday;
                        }
                        if (t == s && j < highest) {
                            tally(walkedToday, t, j);
                            ++awayCellsToday;
                        }
                    }
                }

                for (int a = 1; a <= agents; ++a) {
                    const int key = grid.keyOf(a);
                    std::int64_t whole = 0;
                    if (ws.gVacation[a][d] == 1 || ws.gRestriction[a][w][s] == 1) {
                        whole += kAwayOrRestricted;
                    }
                    whole += kTwiceInShift * inShift[key] + kTwiceInDay * inDay[key] +
                             kPerPositionHeld * heldBefore[key];
                    double sum = static_cast<double>(whole);

                    // Closeness to the agent's recent positions, falling linearly with the
                    // distance; a window that reaches before the 1st starts at day 0.
                    for (std::uint32_t near = grid.daysHeld(key) & window; near != 0;
                         near &= near - 1) {
                        const int e = std::countr_zero(near);
                        const double amount = 2000.0 * (spacing + 1 - (d - e)) / spacing;
                        for (int c = grid.heldOn(key, e); c > 0; --c) {
                            sum += amount;
                        }
                    }
                    // The same weekday in the weeks before.
                    for (int e = firstSameWeekday(d); e <= d - 1; e += 7) {
                        const double amount = (4 - (d - e) / 7.0) * 300;
                        for (int c = grid.heldOn(key, e); c > 0; --c) {
                            sum += amount;
                        }
                    }
                    // An agent back from vacation does not catch up beyond a fifth over its
                    // pro-rated share. With no share at all the quotient has no value and
                    // the term is left out.
                    const std::int64_t load = heldBefore[key] + walkedToday[key];
                    const std::int64_t awayCells =
                        awayCellsBefore[a] + (ws.gVacation[a][d] == 1 ? awayCellsToday : 0);
                    const double expected = p.expectedLoad[a];
                    if (awayCells > 1 && static_cast<double>(load) > 1.2 * expected * d / days &&
                        expected != 0) {
                        sum += kOverload * ((static_cast<double>(load) / done) / expected);
                    }
                    score[a] = sum;
                }
                for (const int key : touched) {
                    inShift[key] = 0;
                    inDay[key] = 0;
                    walkedToday[key] = 0;
                }
                touched.clear();

                const double r = ctx.random.next();
                const int start = static_cast<int>(std::floor(r * agents)) + 1;
                double best = kNoBestScore;
                int chosen = 0;
                for (int i = 1; i <= agents; ++i) {
                    const int a = ((i + start) % agents) + 1;
                    if (score[a] < best) {
                        best = score[a];
                        chosen = a;
                    }
                }
                grid.write(d, s, k, chosen);
                if (progress.placed) {
                    progress.placed(chosen,
                                    1 - static_cast<double>(p.positions - done) / p.positions);
                }
                if (!ctx.events.doEvents()) {
                    return;
                }
            }
        }
    }
}

struct Cell {
    int day;
    int shift;
    int slot;
};

// For each key, its cells in the order in which the repair search meets them.
struct CellsByKey {
    std::vector<int> first;  // cells of key k: list[first[k] .. first[k + 1])
    std::vector<Cell> list;

    template <typename Wanted>
    void build(const Grid& grid, Wanted&& wanted) {
        first.assign(static_cast<std::size_t>(grid.keys()) + 1, 0);
        list.clear();
        const auto each = [&](auto&& visit) {
            for (int day = 1; day <= grid.days(); ++day) {
                if (wanted(day)) {
                    grid.forEachCell(day, [&](int shift, int slot) {
                        const int key = grid.keyAt(day, shift, slot);
                        if (key >= 0) {
                            visit(key, Cell{day, shift, slot});
                        }
                    });
                }
            }
        };
        each([&](int key, const Cell&) { ++first[key + 1]; });
        for (int key = 0; key < grid.keys(); ++key) {
            first[key + 1] += first[key];
        }
        list.resize(static_cast<std::size_t>(first.back()));
        std::vector<int> next(first.begin(), first.end() - 1);
        each([&](int key, const Cell& cell) { list[next[key]++] = cell; });
    }
    const Cell* begin(int key) const { return list.data() + first[key]; }
    const Cell* end(int key) const { return list.data() + first[key + 1]; }
};

// The score of an exchange in which the high agent's key takes (e, t) and the low agent's
// key takes (d, s), cells as they stand, or nothing when it cannot beat best: every term
// adds a nonnegative amount, so the whole-number part alone already rules it out.
double exchangeScore(const Grid& grid, int spacing, const Cell& weekend, const Cell& weekday,
                     int highKey, int lowKey, double best) {
    const int d = weekend.day;
    const int e = weekday.day;
    const std::int64_t whole = kExchangeInShift * (grid.heldInShift(highKey, e, weekday.shift) +
                                                   grid.heldInShift(lowKey, d, weekend.shift)) +
                               kExchangeInDay * (grid.heldOn(highKey, e) + grid.heldOn(lowKey, d));
    double sum = static_cast<double>(whole);
    if (sum >= best) {
        return sum;
    }
    const int days = grid.days();
    // Positions near the new day, dearer the closer they are.
    const auto near = [&](int centre, int key) {
        if (spacing == 0) {
            return;
        }
        const std::uint32_t around =
            dayRange(std::max(1, centre - spacing), std::min(days, centre + spacing)) &
            ~(std::uint32_t{1} << centre);
        for (std::uint32_t held = grid.daysHeld(key) & around; held != 0; held &= held - 1) {
            const int f = std::countr_zero(held);
            const double amount = 10000 * (1 - std::abs(f - centre) / static_cast<double>(spacing));
            for (int c = grid.heldOn(key, f); c > 0; --c) {
                sum += amount;
            }
        }
    };
    // Positions on the same weekday, both ways along the month.
    const auto sameWeekday = [&](int centre, int key) {
        for (int f = firstSameWeekday(centre); f <= days; f += 7) {
            if (f == centre) {
                continue;
            }
            const double amount = (4 - std::abs(centre - f) / 7.0) * 300;
            for (int c = grid.heldOn(key, f); c > 0; --c) {
                sum += amount;
            }
        }
    };
    near(e, highKey);
    near(d, lowKey);
    sameWeekday(e, highKey);
    sameWeekday(d, lowKey);
    return sum;
}

// Evens out weekend duty: each round exchanges one weekend position of an agent with the
// most weekend positions for a Monday-to-Friday position of one with the fewest.
void repair(Workspace& ws, Grid& grid, const Preparation& p, const SmartRandomProgress& progress) {
    const int agents = ws.gAgentCount;
    const int days = grid.days();
    const auto weekendDay = [&](int day) {
        return ws.gHoliday[day] == 0 && isWeekend(grid.weekday(day));
    };
    const auto weekdayDay = [&](int day) { return !isWeekend(grid.weekday(day)); };
    // Agents with a vacation on a weekend day never set the bounds.
    std::vector<char> awayOnWeekend(static_cast<std::size_t>(agents) + 1, 0);
    for (int a = 1; a <= agents; ++a) {
        for (int day = 1; day <= days; ++day) {
            awayOnWeekend[a] |= weekendDay(day) && ws.gVacation[a][day] == 1 ? 1 : 0;
        }
    }
    const auto mayLoseWeekends = [&](int a) {
        return p.restrictedWeekdayShare[a] < kMostlyRestricted;
    };
    const auto mayTakeWeekends = [&](int a) {
        return p.restrictedWeekendShare[a] < kMostlyRestricted;
    };

    // The exchange last recorded. A round that finds none writes it once more, which
    // changes nothing; before any is found it is the unused cell (0, 0, 0).
    Cell recordedWeekend{0, 0, 0};
    Cell recordedWeekday{0, 0, 0};
    int recordedHigh = 0;
    int recordedLow = 0;
    int lastHigh = 0;

    std::vector<int> weekendHeld(static_cast<std::size_t>(grid.keys()));
    std::vector<int> shiftZeroHeld(weekendHeld.size());
    std::vector<int> high;
    std::vector<int> low;
    CellsByKey weekendCells;
    CellsByKey weekdayCells;
    for (int round = 1; round <= kRepairRounds; ++round) {
        // The bounds count the shift-0 cells of a weekend day too, which hold nothing the
        // sweep wrote but can match a key that is the empty text.
        std::fill(weekendHeld.begin(), weekendHeld.end(), 0);
        std::fill(shiftZeroHeld.begin(), shiftZeroHeld.end(), 0);
        for (int day = 1; day <= days; ++day) {
            if (!weekendDay(day)) {
                continue;
            }
            for (int key = 0; key < grid.keys(); ++key) {
                weekendHeld[key] += grid.heldOn(key, day);
            }
            for (int slot = 0; slot <= grid.highestSlot(grid.weekday(day), 0); ++slot) {
                const int key = grid.keyAt(day, 0, slot);
                if (key >= 0) {
                    ++shiftZeroHeld[key];
                }
            }
        }
        int minimum = 10000000;
        int maximum = 0;
        for (int a = 1; a <= agents; ++a) {
            if (awayOnWeekend[a] != 0) {
                continue;
            }
            const int key = grid.keyOf(a);
            const int count = weekendHeld[key] + shiftZeroHeld[key];
            if (count > maximum && mayLoseWeekends(a)) {
                maximum = count;
            }
            if (count < minimum && mayTakeWeekends(a)) {
                minimum = count;
            }
        }
        if (maximum - minimum <= 1) {
            break;
        }
        high.clear();
        low.clear();
        for (int a = 1; a <= agents; ++a) {
            const int count = weekendHeld[grid.keyOf(a)];
            if (count == maximum && mayLoseWeekends(a)) {
                high.push_back(a);
            }
            if (count == minimum && mayTakeWeekends(a)) {
                low.push_back(a);
            }
        }

        weekendCells.build(grid, weekendDay);
        weekdayCells.build(grid, weekdayDay);
        double best = kNoBestExchange;
        bool found = false;
        // The first exchange found of the lowest score wins. No score is below 0, so the
        // search can stop at the first exchange that costs nothing.
        const auto search = [&] {
            for (const int h : high) {
                const int highKey = grid.keyOf(h);
                for (const int l : low) {
                    const int lowKey = grid.keyOf(l);
                    for (const Cell* give = weekendCells.begin(highKey);
                         give != weekendCells.end(highKey); ++give) {
                        const int w = grid.weekday(give->day);
                        if (ws.gRestriction[l][w][give->shift] == 1 ||
                            ws.gVacation[l][give->day] == 1) {
                            continue;
                        }
                        for (const Cell* take = weekdayCells.begin(lowKey);
                             take != weekdayCells.end(lowKey); ++take) {
                            if (ws.gRestriction[h][grid.weekday(take->day)][take->shift] == 1 ||
                                ws.gVacation[h][take->day] == 1) {
                                continue;
                            }
                            const double score =
                                exchangeScore(grid, p.spacing, *give, *take, highKey, lowKey, best);
                            if (score < best) {
                                best = score;
                                found = true;
                                recordedWeekend = *give;
                                recordedWeekday = *take;
                                recordedHigh = h;
                                recordedLow = l;
                                if (best == 0) {
                                    return;
                                }
                            }
                        }
                    }
                }
            }
        };
        search();
        // The window shows the last high agent the search went through.
        if (!high.empty()) {
            lastHigh = high.back();
        }
        grid.write(recordedWeekend.day, recordedWeekend.shift, recordedWeekend.slot, recordedLow);
        grid.write(recordedWeekday.day, recordedWeekday.shift, recordedWeekday.slot, recordedHigh);
        if (progress.exchanged) {
            progress.exchanged(lastHigh);
        }
        if (!found) {
            // Nothing changed, so every round left would find the same nothing again.
            if (progress.exchanged) {
                for (int left = round + 1; left <= kRepairRounds; ++left) {
                    progress.exchanged(lastHigh);
                }
            }
            break;
        }
    }
}

}  // namespace

void modGenerateSmartRandom(Workspace& ws, Context& ctx, const SmartRandomProgress& progress) {
    modStatus(ws, ctx, QStringLiteral("Generating a schedule using the SmartRandom schedule"));
    Grid grid(ws);
    const Preparation p = prepare(ws, grid);
    sweep(ws, ctx, grid, p, progress);
    if (ctx.events.ending()) {
        return;
    }
    if (progress.repairing) {
        progress.repairing();
    }
    if (!ctx.events.doEvents()) {
        return;
    }
    repair(ws, grid, p, progress);
    ws.gSelectedAgent = 0;
}

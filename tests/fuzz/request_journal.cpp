#include "fuzzing.h"

#include "export/requestjournal.h"

namespace {

const QDate kMonth(2027, 1, 1);
const QDate kOtherMonth(2027, 2, 1);

}  // namespace

// The meeting requests' journal: whatever the file holds, the month's part reads as whole
// appointments, and the month's part written back reads the same and leaves another month's
// as it was.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString path = scratchFile(QStringLiteral("Desko40.requests"), inputBytes(data, size));
    const RequestJournal journal = readRequestJournal(path, kMonth);
    for (const SentAppointment& sent : journal.sent) {
        require(!sent.uid.isEmpty() && !sent.attendee.isEmpty() && sent.date.isValid() &&
                    sent.start >= 0 && sent.start < 24 * 60 && sent.end >= 0 && sent.end < 24 * 60,
                "every appointment read is whole");
    }
    const RequestJournal other = readRequestJournal(path, kOtherMonth);
    require(writeRequestJournal(path, kMonth, journal), "the journal is written");
    require(readRequestJournal(path, kMonth) == journal, "the month's part reads back as written");
    require(readRequestJournal(path, kOtherMonth) == other, "another month's part stays");
    return 0;
}

#include "fuzzing.h"

#include "core/model/shifttime.h"
#include "core/services/textfile.h"

#include <QRegularExpression>

namespace {

// Minutes since midnight of a time in the form "hh:mm AM", or -1 for any other text.
int minutesOf(const QString& time) {
    static const QRegularExpression form(QStringLiteral("^(0[1-9]|1[0-2]):([0-5][0-9]) (AM|PM)$"));
    const QRegularExpressionMatch match = form.match(time);
    if (!match.hasMatch()) {
        return -1;
    }
    const int hour =
        match.captured(1).toInt() % 12 + (match.captured(3) == QStringLiteral("PM") ? 12 : 0);
    return hour * 60 + match.captured(2).toInt();
}

}  // namespace

// A shift's time text: a text that reads gives two times of the day in the form "hh:mm AM",
// the start strictly before the end; one that does not leaves both empty.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    QString start = QStringLiteral("unset");
    QString end = QStringLiteral("unset");
    if (modInterpretShiftTime(decodeText(inputBytes(data, size)), start, end)) {
        const int from = minutesOf(start);
        require(from >= 0 && minutesOf(end) >= 0, "a time that reads is a time of the day");
        require(from < minutesOf(end), "a time that reads starts before it ends");
    } else {
        require(start.isEmpty() && end.isEmpty(), "a time that does not read leaves nothing");
    }
    return 0;
}

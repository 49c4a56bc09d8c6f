#include "shell/shutdown.h"

#include "core/model/workspace.h"
#include "fakes.h"
#include "recordingview.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

// Each road out with each state of the change flag, each answer and each end of the Save As
// that Yes runs: the question asked, when the working file is written, whether the run ends
// and whether the log is closed.
TEST(Shutdown, TwoRoadsOut) {
    enum class Road { Close, Exit };
    struct Case {
        Road road;
        std::optional<int> dirty;
        std::optional<MsgAnswer> answer;  // none: no question is asked
        bool saves;                       // the Save As after Yes completes
        bool ends;
    };
    const QString closeQuestion = QStringLiteral(
        "The current desko schedule has not been saved.  Do you want to save the changes?");
    const QString exitQuestion = QStringLiteral(
        "The desko schedule has changed since you last saved the configuration.  Do you want to "
        "save the changes?");
    const Case cases[] = {
        {Road::Close, std::nullopt, std::nullopt, false, true},
        {Road::Close, 0, std::nullopt, false, true},
        {Road::Close, 1, MsgAnswer::Yes, true, true},
        {Road::Close, 1, MsgAnswer::Yes, false, true},  // ends even though nothing was saved
        {Road::Close, 1, MsgAnswer::No, false, true},
        {Road::Close, 1, MsgAnswer::Cancel, false, false},
        {Road::Exit, std::nullopt, std::nullopt, false, true},
        {Road::Exit, 0, std::nullopt, false, true},
        {Road::Exit, 1, MsgAnswer::Yes, true, true},
        {Road::Exit, 1, MsgAnswer::Yes, false, false},  // the save did not complete: stay
        {Road::Exit, 1, MsgAnswer::No, false, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(&c - cases);
        QTemporaryDir home;
        TestServices s;
        RecordingView view;
        Workspace ws;
        openMonth(ws, 2027, 1, home.path());
        ws.gDirty = c.dirty;
        if (c.answer) {
            s.dialogs.answers.push_back(*c.answer);
        }
        if (c.saves) {
            s.dialogs.fileAnswers.push_back(home.filePath(QStringLiteral("last words")));
        }
        bool writtenBeforeQuestion = false;
        s.dialogs.whileShown = [&] { writtenBeforeQuestion = QFile::exists(ws.gConfigFile); };

        const bool ends = (c.road == Road::Close ? closeMainWindow : exitProgram)(ws, s.ctx, view);

        EXPECT_EQ(ends, c.ends);
        const bool close = c.road == Road::Close;
        EXPECT_EQ(s.dialogs.texts(), c.answer
                                         ? s.dialogs.wrapped({close ? closeQuestion : exitQuestion})
                                         : QStringList());
        if (c.answer) {
            EXPECT_EQ(s.dialogs.shown[0].buttons,
                      close ? MsgButtons::YesNoCancel : MsgButtons::YesNo);
            EXPECT_EQ(s.dialogs.shown[0].icon, MsgIcon::Question);
            EXPECT_EQ(writtenBeforeQuestion, close);
        }
        EXPECT_EQ(s.dialogs.filesShown.size(), c.answer == MsgAnswer::Yes ? 1U : 0U);
        EXPECT_EQ(fileText(home.filePath(QStringLiteral("last words.dko")))
                      .contains(QStringLiteral("\r\n[Schedule]\r\n")),
                  c.saves);
        EXPECT_EQ(QFile::exists(ws.gConfigFile), close || c.ends);
        EXPECT_EQ(fileText(ws.gLogFile).contains(QStringLiteral("]     Closing Desko40.log on ")),
                  close && c.ends);
        EXPECT_EQ(logged(ws, QStringLiteral("Cancelling unload")), c.answer == MsgAnswer::Cancel);
    }
}

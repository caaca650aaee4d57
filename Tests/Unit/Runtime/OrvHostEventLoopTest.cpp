#include "Host/Runtime/OrvHostEventLoop.h"
#include "Tests/Support/OrvRecordingLog.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

using namespace OrvWebBridge;

TEST(FOrvHostEventLoopTest, PostedTasksRunLaterInPostOrderNeverInline)
{
    FOrvHostEventLoop Loop;
    std::vector<std::string> Ran;
    Loop.GameThread().Post(
        [&]
        {
            Ran.push_back("first");
            // Queued from inside a task: still not inline, after what was queued before.
            Loop.GameThread().Post([&] { Ran.push_back("nested"); });
            Ran.push_back("first-end");
        });
    Loop.GameThread().Post([&] { Ran.push_back("second"); });
    EXPECT_TRUE(Ran.empty());

    EXPECT_TRUE(Loop.RunUntil([&] { return Ran.size() == 4; }, 5.0));
    EXPECT_EQ(Ran, (std::vector<std::string>{"first", "first-end", "second", "nested"}));
}

TEST(FOrvHostEventLoopTest, TimersFireOnceAndClearedTimersNever)
{
    FOrvHostEventLoop Loop;
    int Fired = 0;
    bool bClearedFired = false;
    FOrvTimerHandle Cleared;
    // Both expire at once, so the second's handler may already be queued when the first clears it.
    Loop.Timers().SetTimer(0.0,
                           [&]
                           {
                               ++Fired;
                               Loop.Timers().ClearTimer(Cleared);
                           });
    Cleared = Loop.Timers().SetTimer(0.0, [&] { bClearedFired = true; });
    FOrvTimerHandle Later = Loop.Timers().SetTimer(0.01, [&] { ++Fired; });
    EXPECT_TRUE(Later.IsValid());

    EXPECT_TRUE(Loop.RunUntil([&] { return Fired == 2; }, 5.0));
    EXPECT_FALSE(bClearedFired);
    EXPECT_FALSE(Cleared.IsValid());

    // A cleared or fired handle is safe to clear again.
    Loop.Timers().ClearTimer(Later);
    Loop.Timers().ClearTimer(Cleared);
    EXPECT_FALSE(Loop.RunUntil([&] { return Fired > 2 || bClearedFired; }, 0.05));
}

TEST(FOrvHostEventLoopTest, StopEndsRunAndRunUntilGivesUpAtItsTimeout)
{
    FOrvHostEventLoop Loop;
    bool bAfterStop = false;
    Loop.GameThread().Post([&] { Loop.Stop(); });
    Loop.Run();

    Loop.GameThread().Post([&] { bAfterStop = true; });
    EXPECT_TRUE(Loop.RunUntil([&] { return bAfterStop; }, 5.0)) << "the loop runs again after a stop";
    EXPECT_FALSE(Loop.RunUntil([] { return false; }, 0.02));
}

TEST(FOrvHostEventLoopTest, AHandlerThatThrowsIsLoggedAndTheLoopServesOn)
{
    FOrvHostEventLoop Loop;
    FOrvRecordingLog Log;
    bool bRanAfter = false;
    Loop.GameThread().Post([] { throw std::length_error("field value too large"); });
    Loop.GameThread().Post(
        [&]
        {
            bRanAfter = true;
            Loop.Stop();
        });
    Loop.Run(&Log);
    EXPECT_TRUE(bRanAfter);
    EXPECT_TRUE(
        Log.Contains(EOrvLogVerbosity::Error,
                     "orv-host: a request failed inside the host (field value too large); still serving"));
}

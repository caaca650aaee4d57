#include "Tests/Support/OrvBeastServerRig.h"
#include "Tests/Support/OrvTestHttpClient.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    /** Accepts every stream on /events and keeps it, counting the OnClosed calls. */
    struct FOrvStreamRig : FOrvBeastServerRig
    {
        explicit FOrvStreamRig(FOrvHttpServerLimits Limits = {}) : FOrvBeastServerRig(Limits)
        {
            Router->BindEventStream(
                "/events",
                [this](const FOrvHttpRequest&, const std::shared_ptr<IOrvHttpEventStream>& Stream)
                {
                    Stream->SetOnClosed([this] { ++ClosedCount; });
                    Streams.push_back(Stream);
                    return nullptr;
                });
        }

        bool WaitForClosed(int Count)
        {
            return Loop.RunUntil([&] { return ClosedCount == Count; }, 5.0);
        }

        std::vector<std::shared_ptr<IOrvHttpEventStream>> Streams;
        int ClosedCount = 0;
    };
} // namespace

TEST(FOrvHttpEventStreamTest, EventsArriveLiveInOrderWithEveryLineOfDataAsItsOwnField)
{
    FOrvBeastServerRig Rig;
    std::shared_ptr<IOrvHttpEventStream> Stream;
    std::string SeenQuery;
    Rig.Router->BindEventStream(
        "/events",
        [&](const FOrvHttpRequest& Request, const std::shared_ptr<IOrvHttpEventStream>& Opened)
        {
            SeenQuery = Request.Query;
            Stream = Opened;
            Opened->SendEvent("ready", "sent by the handler");
            return nullptr;
        });

    FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
    const FOrvTestHttpReply Head = Client.OpenStream("/events?session=7");
    EXPECT_EQ(Head.Status, 200);
    EXPECT_EQ(Head.Header("Content-Type"), "text/event-stream");
    EXPECT_EQ(Head.Header("Cache-Control"), "no-cache");
    EXPECT_EQ(Head.Header("Content-Length"), "") << "the body is written as events come";
    EXPECT_EQ(SeenQuery, "session=7");
    ASSERT_NE(Stream, nullptr);

    std::string Expected = "event: ready\ndata: sent by the handler\n\n";
    ASSERT_TRUE(Client.ReadStreamUntil(Expected));
    const struct
    {
        const char* Name;
        std::string Data;
        const char* Wire;
    } Cases[] = {
        {"patch", "one\ntwo\r\nthree\rfour",
         "event: patch\ndata: one\ndata: two\ndata: three\ndata: four\n\n"},
        {"", "{\"a\":\"\xC3\xA9\"}", "data: {\"a\":\"\xC3\xA9\"}\n\n"},
        {"empty", "", "event: empty\ndata: \n\n"},
        {"split\r\nname", "ends with a break\n", "event: splitname\ndata: ends with a break\ndata: \n\n"},
    };
    for (const auto& Case : Cases)
    {
        // Each event is read before the next is sent: it went out at once, not when the stream ended.
        EXPECT_TRUE(Stream->SendEvent(Case.Name, Case.Data));
        EXPECT_TRUE(Client.ReadStreamUntil(Case.Wire)) << Case.Wire;
        Expected += Case.Wire;
    }
    EXPECT_EQ(Client.GetStreamText(), Expected);
    EXPECT_TRUE(Stream->IsOpen());
}

TEST(FOrvHttpEventStreamTest, StreamsEndOnceByEitherSideCountAsConnectionsAndGetHeartbeats)
{
    FOrvHttpServerLimits Limits;
    Limits.MaxConnections = 1;
    Limits.StreamHeartbeatSeconds = 0.05;
    FOrvStreamRig Rig(Limits);

    // A client that leaves is noticed although nothing is being sent to it.
    {
        FOrvTestHttpClient Leaver(Rig.Loop.Context(), Rig.Port());
        ASSERT_EQ(Leaver.OpenStream("/events").Status, 200);
        EXPECT_TRUE(Leaver.ReadStreamUntil(": \n\n", 2.0)) << "an idle stream gets heartbeats";
        const FOrvTestHttpReply Refused = FOrvTestHttpClient(Rig.Loop.Context(), Rig.Port()).Get("/events");
        EXPECT_EQ(Refused.Status, 503) << "an open stream counts toward the connection cap";
        EXPECT_EQ(Refused.Header("Retry-After"), "1");
    }
    EXPECT_TRUE(Rig.WaitForClosed(1));
    EXPECT_FALSE(Rig.Streams[0]->IsOpen());
    EXPECT_FALSE(Rig.Streams[0]->SendEvent("late", "nobody listens"));
    ASSERT_TRUE(Rig.WaitForConnections(0));

    // The application ends the stream: what it queued still arrives, then the response ends.
    FOrvTestHttpClient Ended(Rig.Loop.Context(), Rig.Port());
    ASSERT_EQ(Ended.OpenStream("/events").Status, 200);
    ASSERT_EQ(Rig.Streams.size(), 2u);
    EXPECT_TRUE(Rig.Streams[1]->SendEvent("bye", "last words"));
    Rig.Streams[1]->Close();
    EXPECT_EQ(Rig.ClosedCount, 1) << "OnClosed is posted, never run inside Close";
    EXPECT_FALSE(Rig.Streams[1]->SendEvent("after", "close"));
    EXPECT_TRUE(Ended.ReadStreamUntil("event: bye\ndata: last words\n\n"));
    EXPECT_TRUE(Ended.WaitForServerClose(5.0));
    EXPECT_TRUE(Rig.WaitForClosed(2));
    ASSERT_TRUE(Rig.WaitForConnections(0));

    // Stopping the server ends the streams too.
    FOrvTestHttpClient Stopped(Rig.Loop.Context(), Rig.Port());
    ASSERT_EQ(Stopped.OpenStream("/events").Status, 200);
    Rig.Module.StopAllListeners();
    EXPECT_FALSE(Rig.Streams[2]->IsOpen());
    EXPECT_TRUE(Stopped.WaitForServerClose(5.0));
    EXPECT_TRUE(Rig.WaitForClosed(3));
    Rig.Streams[2]->Close();
    Rig.Loop.RunUntil([] { return false; }, 0.1);
    EXPECT_EQ(Rig.ClosedCount, 3) << "each stream's OnClosed ran once";
}

TEST(FOrvHttpEventStreamTest, ARefusedStreamSendsTheHandlersAnswerAndNeverOpens)
{
    FOrvBeastServerRig Rig;
    std::vector<std::shared_ptr<IOrvHttpEventStream>> Streams;
    Rig.Router->BindEventStream(
        "/events",
        [&](const FOrvHttpRequest& Request,
            const std::shared_ptr<IOrvHttpEventStream>& Stream) -> std::unique_ptr<FOrvHttpResponse>
        {
            Streams.push_back(Stream);
            Stream->SendEvent("hello", Request.Query);
            return Request.Query == "token=good" ? nullptr : MakeTextResponse("Forbidden.\n", 403);
        });

    FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
    const FOrvTestHttpReply Refused = Client.Get("/events?token=bad");
    EXPECT_EQ(Refused.Status, 403);
    EXPECT_EQ(Refused.Body, "Forbidden.\n") << "nothing the handler queued leaks into the answer";
    ASSERT_EQ(Streams.size(), 1u);
    EXPECT_FALSE(Streams[0]->IsOpen());
    EXPECT_FALSE(Streams[0]->SendEvent("after", "refusal"));

    // The same connection carries on, and a stream it then opens starts clean.
    EXPECT_EQ(Client.OpenStream("/events?token=good").Status, 200);
    EXPECT_TRUE(Client.ReadStreamUntil("\n\n"));
    EXPECT_EQ(Client.GetStreamText(), "event: hello\ndata: token=good\n\n");
}

TEST(FOrvHttpEventStreamTest, AStalledReaderIsClosedOnceItsQueuePassesTheBoundWhileAReaderKeepsUp)
{
    FOrvHttpServerLimits Limits;
    Limits.MaxStreamQueueBytes = 64 * 1024;
    FOrvStreamRig Rig(Limits);

    // A reader that keeps up gets even an event larger than the bound.
    FOrvTestHttpClient Reader(Rig.Loop.Context(), Rig.Port());
    ASSERT_EQ(Reader.OpenStream("/events").Status, 200);
    const std::string Large(256 * 1024, 'x');
    EXPECT_TRUE(Rig.Streams[0]->SendEvent("large", Large));
    EXPECT_TRUE(Reader.ReadStreamUntil(Large + "\n\n"));

    FOrvTestHttpClient Stalled(Rig.Loop.Context(), Rig.Port());
    ASSERT_EQ(Stalled.OpenStream("/events").Status, 200);
    ASSERT_EQ(Rig.Streams.size(), 2u);
    const std::string Chunk(16 * 1024, 'z');
    std::size_t Sent = 0;
    // Socket buffers take some megabytes first; the cap only keeps a broken bound from looping forever.
    while (Sent < 64u * 1024 * 1024 && Rig.Streams[1]->SendEvent("flood", Chunk))
    {
        Sent += Chunk.size();
        Rig.Loop.RunUntil([] { return false; }, 0.001);
    }
    EXPECT_FALSE(Rig.Streams[1]->IsOpen());
    EXPECT_TRUE(Rig.WaitForClosed(1));
    EXPECT_TRUE(Rig.WaitForConnections(1)) << "the stalled connection is released";
    EXPECT_TRUE(Rig.Streams[0]->IsOpen());
    EXPECT_TRUE(Rig.Streams[0]->SendEvent("still", "here"));
    EXPECT_TRUE(Reader.ReadStreamUntil("event: still\ndata: here\n\n"));
}

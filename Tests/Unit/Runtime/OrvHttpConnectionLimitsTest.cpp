#include "Tests/Support/OrvBeastServerRig.h"
#include "Tests/Support/OrvTestHttpClient.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

using namespace OrvWebBridge;

namespace
{
    /** The rig with an echo route on /mcp and an event stream on /events whose streams it keeps. */
    struct FOrvLimitsRig : FOrvBeastServerRig
    {
        explicit FOrvLimitsRig(FOrvHttpServerLimits Limits) : FOrvBeastServerRig(Limits)
        {
            BindEcho("/mcp", EOrvHttpVerb::Post);
            Router->BindEventStream(
                "/events",
                [this](const FOrvHttpRequest&, const std::shared_ptr<IOrvHttpEventStream>& Stream)
                {
                    Streams.push_back(Stream);
                    return nullptr;
                });
        }

        FOrvTestHttpClient& NewClient()
        {
            Clients.push_back(std::make_unique<FOrvTestHttpClient>(Loop.Context(), Port()));
            return *Clients.back();
        }

        std::vector<std::unique_ptr<FOrvTestHttpClient>> Clients;
        std::vector<std::shared_ptr<IOrvHttpEventStream>> Streams;
    };

    /** Sends Prefix, then Text a byte every 20 ms until the server closes; how many bytes of Text it took. */
    std::size_t Trickle(FOrvLimitsRig& Rig, std::string_view Prefix, std::string_view Text)
    {
        FOrvTestHttpClient& Client = Rig.NewClient();
        EXPECT_TRUE(Prefix.empty() || Client.WriteRaw(Prefix));
        std::size_t Sent = 0;
        while (Sent < Text.size() && !Client.HasServerClosed() && Client.WriteRaw(Text.substr(Sent, 1)))
        {
            ++Sent;
            Rig.Loop.RunUntil([] { return false; }, 0.02);
        }
        return Sent;
    }
} // namespace

// A flood of connections that send nothing (or sent a request and went quiet) must not lock out the user's
// real client: it takes the place of the one idle longest. What is under way keeps its place.
TEST(FOrvHttpConnectionLimitsTest,
     AFullServerGivesTheLongestIdleSlotToANewcomerAndKeepsWorkUnderWayAndNewStreams)
{
    FOrvHttpServerLimits Limits;
    Limits.MaxConnections = 4;
    Limits.MaxEventStreams = 1;
    FOrvLimitsRig Rig(Limits);
    FOrvTestHttpClient& Stream = Rig.NewClient();
    ASSERT_EQ(Stream.OpenStream("/events").Status, 200);
    FOrvTestHttpClient& Partial = Rig.NewClient();
    ASSERT_TRUE(Partial.WriteRaw("POST /mcp HTTP/1.1\r\nHost: x\r\nContent-Le"));
    FOrvTestHttpClient& Quiet = Rig.NewClient();
    ASSERT_TRUE(Quiet.Connect());
    FOrvTestHttpClient& Used = Rig.NewClient();
    ASSERT_EQ(Used.Post("/mcp", "one").Status, 200);
    ASSERT_TRUE(Rig.WaitForConnections(4));

    // Quiet has waited longer than Used, which answered a request since.
    EXPECT_EQ(Rig.NewClient().Post("/mcp", "{}").Status, 200);
    EXPECT_TRUE(Quiet.HasServerClosed());
    EXPECT_FALSE(Used.HasServerClosed());
    EXPECT_EQ(Rig.NewClient().Post("/mcp", "{}").Status, 200);
    EXPECT_TRUE(Used.HasServerClosed());

    // The request under way and the live stream stay; only idle connections give way...
    EXPECT_TRUE(Partial.WriteRaw("ngth: 3\r\n\r\nabc"));
    EXPECT_EQ(Partial.ReadReply().Body, "abc");
    EXPECT_TRUE(Rig.Streams[0]->SendEvent("still", "open"));
    EXPECT_TRUE(Stream.ReadStreamUntil("data: open\n\n"));

    // ...but a newer stream past the streams' own cap ends the oldest: a reloaded page's replaces the old.
    ASSERT_EQ(Rig.NewClient().OpenStream("/events").Status, 200);
    EXPECT_FALSE(Rig.Streams[0]->IsOpen());
    EXPECT_TRUE(Stream.WaitForServerClose(5.0));
    EXPECT_TRUE(Rig.Streams[1]->IsOpen());
}

// Deadlines count from the start of what is awaited, so a client that sends a byte now and then cannot keep
// its connection (and its slot) for ever.
TEST(FOrvHttpConnectionLimitsTest, SlowClientsAreCutOffAtTheirDeadlinesHoweverOftenTheySendAByte)
{
    FOrvHttpServerLimits Limits;
    Limits.IdleTimeoutSeconds = 0.2;
    Limits.RequestTimeoutSeconds = 0.3;
    Limits.MinBodyBytesPerSecond = 100;
    FOrvLimitsRig Rig(Limits);
    EXPECT_TRUE(Rig.NewClient().WaitForServerClose(5.0)) << "a connection that sends nothing";

    const std::string Header = "POST /mcp HTTP/1.1\r\nHost: x\r\nX-Pad: " + std::string(200, 'p') + "\r\n";
    EXPECT_LT(Trickle(Rig, "", Header), Header.size()) << "a header a byte at a time";
    const std::string Body(400, 'b');
    EXPECT_LT(Trickle(Rig, Header + "Content-Length: 400\r\n\r\n", Body), Body.size()) << "a body likewise";
    EXPECT_TRUE(Rig.WaitForConnections(0));
}

TEST(FOrvHttpConnectionLimitsTest, AClientThatNeverReadsHoldsOneAnswerAndIsDropped)
{
    FOrvHttpServerLimits Limits;
    Limits.SendTimeoutSeconds = 0.3;
    FOrvBeastServerRig Rig(Limits);
    int Calls = 0;
    // Larger than what the kernel's socket buffers take, so the first answer can never be sent whole.
    Rig.Router->BindRoute("/big", EOrvHttpVerb::Post,
                          [&](const FOrvHttpRequest&, const FOrvHttpResultCallback& Done)
                          {
                              ++Calls;
                              Done(MakeTextResponse(std::string(32 * 1024 * 1024, 'a')));
                              return true;
                          });
    FOrvTestHttpClient Client(Rig.Loop.Context(), Rig.Port());
    std::string Pipelined;
    for (int Index = 0; Index < 50; ++Index)
    {
        Pipelined += "POST /big HTTP/1.1\r\nHost: x\r\nContent-Length: 0\r\n\r\n";
    }
    ASSERT_TRUE(Client.WriteRaw(Pipelined));
    EXPECT_TRUE(Rig.WaitForConnections(0)) << "dropped once it stopped taking bytes";
    EXPECT_EQ(Calls, 1) << "no request is handled while an answer waits";
}

// What a hostile page or process on the user's machine can throw at the real orv-host: JSON attacks on the
// endpoint, then hundreds of connections that say nothing or send their request a byte at a time. None may
// crash, stall or balloon it: the user's AI client is still answered at once, the host is back where it was
// afterwards and the level is as it was. (Malformed HTTP gets its answers in the server's own tests.)
#include "Core/Common/OrvUtf8.h"
#include "Tests/Support/OrvServedHost.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

using namespace OrvWebBridge;
using namespace OrvBeast;

namespace
{
    std::size_t OpenDescriptors(pid_t Pid)
    {
        const auto Entries = std::filesystem::directory_iterator("/proc/" + std::to_string(Pid) + "/fd");
        return static_cast<std::size_t>(std::distance(begin(Entries), end(Entries)));
    }

    std::size_t ResidentKiB(pid_t Pid)
    {
        std::ifstream Status("/proc/" + std::to_string(Pid) + "/status");
        std::string Key;
        std::size_t Value = 0;
        while (Status >> Key)
        {
            if (Key == "VmRSS:" && Status >> Value)
            {
                return Value;
            }
        }
        return 0;
    }

    std::string Repeat(std::string_view Text, std::size_t Count)
    {
        std::string Out;
        for (std::size_t Index = 0; Index < Count; ++Index)
        {
            Out.append(Text);
        }
        return Out;
    }
} // namespace

TEST(FOrvServeHostileClientsEndToEndTest, JsonAttacksAndFloodsLeaveTheRealClientServedAndTheLevelIntact)
{
    FOrvServedHost Host;
    std::string Error;
    ASSERT_TRUE(Host.Start(ORV_HOST_EXECUTABLE, {"--no-console"}, Error)) << Error;
    const std::string LevelBefore = Host.CallTool("ue_list_scene").Text;
    ASSERT_NE(LevelBefore.find("StaticMeshActor"), std::string::npos) << LevelBefore;

    // Attacks on the JSON layer itself are the handler's unit tests' business; here the real host takes a
    // body of megabytes and tool arguments aimed at a level that is really there.
    const std::string Attacks[] = {
        R"({"jsonrpc":"2.0","id":1,"method":")" + std::string(4 << 20, 'm') + "\"}",
        OrvToolCallRequest("ue_spawn_product", R"({"asset_path":")" + Repeat("\\udc00", 1000) +
                                                   R"(","location":)" + Repeat("[", 300) + Repeat("]", 300) +
                                                   "}"),
        OrvToolCallRequest("ue_spawn_product",
                           R"({"asset_path":"\udc00/Game/ORVESSA/SM_\udfff","location":[1e308,-0,0]})"),
        OrvToolCallRequest("ue_move_actor", R"({"ID":"StaticMeshActor_\udc00","location":"x"})"),
        OrvToolCallRequest("ue_delete_actor", R"({"id":")" + Repeat("\xC3", 5000) + R"("})"),
        OrvToolCallRequest("ue_capture_view", R"({"quality":1e308,"Quality":-1e308})"),
    };
    for (const std::string& Body : Attacks)
    {
        const FOrvTestHttpReply Reply = Host.Client().Post("/mcp", Body);
        EXPECT_EQ(Reply.Status, 200) << Body.substr(0, 80);
        // Plus a tool's own output: the demo room's capture is about 70 KiB of Base64.
        EXPECT_LE(Reply.Body.size(), 6 * Body.size() + 256 * 1024) << Body.substr(0, 80);
        EXPECT_TRUE(FOrvUtf8::IsValid(Reply.Body)) << Body.substr(0, 80);
        EXPECT_NE(Reply.Body.find("\"jsonrpc\": \"2.0\""), std::string::npos) << Reply.Body.substr(0, 200);
    }

    const pid_t Pid = Host.Process().GetPid();
    const std::size_t DescriptorsBefore = OpenDescriptors(Pid);
    const std::size_t ResidentBefore = ResidentKiB(Pid);

    asio::io_context Io;
    const tcp::endpoint Endpoint(asio::ip::address_v4::loopback(), Host.GetPort());
    std::vector<tcp::socket> Idle;
    for (int Index = 0; Index < 300; ++Index)
    {
        Idle.emplace_back(Io).connect(Endpoint);
    }
    const std::string Header = "POST /mcp HTTP/1.1\r\nHost: x\r\nContent-Length: 2\r\n\r\n";
    std::vector<tcp::socket> Slow;
    for (int Index = 0; Index < 30; ++Index)
    {
        Slow.emplace_back(Io).connect(Endpoint);
    }
    for (std::size_t Byte = 0; Byte < 10; ++Byte)
    {
        for (tcp::socket& Socket : Slow)
        {
            FErrorCode Ignored;
            asio::write(Socket, asio::buffer(&Header[Byte], 1), Ignored);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }

    const auto Start = std::chrono::steady_clock::now();
    const FOrvTestHttpReply Served = FOrvTestHttpClient(Io, Host.GetPort())
                                         .Post("/mcp", R"({"jsonrpc":"2.0","id":7,"method":"tools/list"})");
    const double Seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
    EXPECT_EQ(Served.Status, 200) << Served.Body;
    EXPECT_NE(Served.Body.find("ue_placement_guide"), std::string::npos);
    EXPECT_LT(Seconds, 1.0) << "the real client waited";
    EXPECT_EQ(FOrvTestHttpClient(Io, Host.GetPort()).Get("/health").Status, 200);

    Idle.clear();
    Slow.clear();
    const auto Deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (OpenDescriptors(Pid) > DescriptorsBefore && std::chrono::steady_clock::now() < Deadline)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    EXPECT_LE(OpenDescriptors(Pid), DescriptorsBefore) << "every flood connection is closed";
    EXPECT_LT(ResidentKiB(Pid), ResidentBefore + 16 * 1024)
        << "resident before: " << ResidentBefore << " KiB";
    Host.Client().Disconnect(); // its idle connection gave its slot to the flood
    EXPECT_EQ(Host.CallTool("ue_list_scene").Text, LevelBefore);
}

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
} // namespace

// What a hostile page or process on the user's machine can do to the real orv-host: malformed and smuggled
// requests, then hundreds of connections that say nothing or send their request a byte at a time. The user's
// AI client must still be answered at once, and the host must be back where it was afterwards.
TEST(FOrvServeHostileClientsEndToEndTest, FloodsAndHostileRequestsLeaveTheRealClientServedAndTheLevelIntact)
{
    FOrvServedHost Host;
    std::string Error;
    ASSERT_TRUE(Host.Start(ORV_HOST_EXECUTABLE, {}, Error)) << Error;
    const std::string Level = Host.Console("list");
    const std::string ToolsList = R"({"jsonrpc":"2.0","id":7,"method":"tools/list"})";
    ASSERT_EQ(Host.Client().Post("/mcp", ToolsList).Status, 200);
    const pid_t Pid = Host.Process().GetPid();
    const std::size_t DescriptorsBefore = OpenDescriptors(Pid);
    const std::size_t ResidentBefore = ResidentKiB(Pid);

    asio::io_context Io;
    const std::string Mcp = "POST /mcp HTTP/1.1\r\nHost: x\r\n";
    for (const std::string& Hostile :
         {Mcp + "Transfer-Encoding: chunked\r\n\r\n1\r\n{\r\n0\r\nX: " + std::string(64 * 1024, 't') +
              "\r\n\r\n",
          Mcp + "Transfer-Encoding: chunked, gzip\r\n\r\n2\r\n{}\r\n0\r\n\r\n",
          Mcp + "Content-Length: 2\r\nContent-Length: 3\r\n\r\n{}",
          Mcp + "X: a\r\n b\r\nContent-Length: 2\r\n\r\n{}", std::string("PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n")})
    {
        const int Status = FOrvTestHttpClient(Io, Host.GetPort()).SendRaw(Hostile, 5.0).Status;
        EXPECT_TRUE(Status == 400 || Status == 501) << Status << " for " << Hostile.substr(0, 80);
    }

    const tcp::endpoint Endpoint(asio::ip::address_v4::loopback(), Host.GetPort());
    std::vector<tcp::socket> Idle;
    for (int Index = 0; Index < 300; ++Index)
    {
        Idle.emplace_back(Io).connect(Endpoint);
    }
    const std::string Header = Mcp + "Content-Length: 2\r\n\r\n";
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
    const FOrvTestHttpReply Served = FOrvTestHttpClient(Io, Host.GetPort()).Post("/mcp", ToolsList);
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
    EXPECT_EQ(Host.Console("list"), Level);
}

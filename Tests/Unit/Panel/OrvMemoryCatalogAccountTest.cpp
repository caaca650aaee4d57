#include "Host/Panel/OrvMemoryCatalogAccount.h"
#include "Core/Bridge/OrvAccountEventRelay.h"
#include "Host/Editor/OrvDemoScene.h"
#include "Host/Panel/OrvPanelCatalog.h"
#include "Tests/Support/OrvBridgeTestRig.h"
#include "Tests/Support/OrvFakeTimers.h"

#include <gtest/gtest.h>

using namespace OrvWebBridge;

namespace
{
    /** @brief The host's account on the demo catalogue, its events going to the rig's panel. */
    struct FOrvAccountRig
    {
        FOrvAccountRig()
        {
            std::string Error;
            EXPECT_TRUE(Catalog.Load(FOrvDemoScene::CatalogJson(), Error)) << Error;
            Account.SetEvents(&Relay);
        }

        /** Lets Seconds pass, tick by tick, as the event loop would. */
        void Wait(double Seconds)
        {
            for (double Waited = 0; Waited < Seconds - 1e-9; Waited += FOrvMemoryDownloadQueue::TickSeconds)
            {
                Timers.Advance(FOrvMemoryDownloadQueue::TickSeconds);
            }
        }

        /** The event names sent to the page so far, and forgets them. */
        std::vector<std::string> TakeEvents()
        {
            std::vector<std::string> Names;
            for (const std::string& Script : Bridge.Panel.Scripts)
            {
                const std::size_t Start = Script.find("__orv_emit('") + 12;
                Names.push_back(Script.substr(Start, Script.find('\'', Start) - Start));
            }
            Bridge.Panel.Scripts.clear();
            return Names;
        }

        FOrvBridgeTestRig Bridge;
        FOrvPanelCatalog Catalog;
        FOrvFakeTimers Timers;
        FOrvMemoryCatalogAccount Account{Catalog, Timers, Bridge.Log};
        FOrvAccountEventRelay Relay{Bridge.Session, Bridge.Log};
    };
} // namespace

TEST(FOrvMemoryCatalogAccountTest, OnlyTheDemoCredentialsSignInAndTheLibraryFollowsTheSession)
{
    FOrvAccountRig Rig;
    Rig.Account.LoginUser("demo", "wrong");
    Rig.Account.LoginUser("Demo", "demo");
    EXPECT_FALSE(Rig.Account.GetLoginState());
    EXPECT_EQ(Rig.Account.GetCurrentUserJson(), "{}");
    EXPECT_TRUE(Rig.Account.GetLibrary().Files.empty());

    Rig.Account.LoginUser("demo", "demo");
    EXPECT_TRUE(Rig.Account.GetLoginState());
    EXPECT_EQ(Rig.Account.GetLibrary().Files.size(), Rig.Catalog.GetProducts().size());
    EXPECT_EQ(Rig.TakeEvents(), std::vector<std::string>{"library.updated"});

    Rig.Account.LogoutUser();
    EXPECT_FALSE(Rig.Account.GetLoginState());
    EXPECT_TRUE(Rig.Account.GetLibrary().Files.empty());
}

TEST(FOrvMemoryCatalogAccountTest, ADownloadProgressesInstallsAndReportsInTheEditorsOrder)
{
    FOrvAccountRig Rig;
    Rig.Account.LoginUser("demo", "demo");
    Rig.TakeEvents();

    Rig.Account.EnqueueDownload("FNV-CH-1102", "product");
    Rig.Account.EnqueueDownload("PVV-CT-0510", "product");
    EXPECT_EQ(Rig.TakeEvents(),
              (std::vector<std::string>{"downloader.queue.updated", "downloader.queue.updated"}));

    Rig.Wait(1.0);
    EXPECT_NE(Rig.Bridge.Panel.Scripts.at(9).find(R"({"progress":1})"), std::string::npos) << "0.1 per tick";
    std::vector<std::string> Expected(10, "downloader.queue.progress");
    Expected.push_back("library.updated");
    Expected.push_back("downloader.queue.updated");
    EXPECT_EQ(Rig.TakeEvents(), Expected);
    ASSERT_EQ(Rig.Account.GetLibrary().InstalledProducts.size(), 1u);
    EXPECT_EQ(Rig.Account.GetLibrary().InstalledProducts[0].ProductName, "Sedia Arco");
    EXPECT_EQ(Rig.Account.GetLibrary().InstalledProducts[0].Files.at(0).UnrealPath,
              "/Game/ORVESSA/FNV-CH-1102/SM_FNV-CH-1102");

    Rig.Wait(1.0);
    Expected.back() = "downloader.queue.finished"; // the empty queue is not reported to the page
    EXPECT_EQ(Rig.TakeEvents(), Expected);
    EXPECT_EQ(Rig.Timers.PendingCount(), 0u);

    Rig.Account.RemoveProductFromLibrary("FNV-CH-1102");
    EXPECT_EQ(Rig.Account.GetLibrary().InstalledProducts.size(), 1u)
        << "removing takes the installed copy too";
}

TEST(FOrvMemoryCatalogAccountTest, ADownloadThatCannotBeQueuedIsLoggedAndLeavesTheQueueAsItWas)
{
    FOrvAccountRig Rig;
    Rig.Account.EnqueueDownload("FNV-CH-1102", "product"); // nobody signed in
    Rig.Account.LoginUser("demo", "demo");
    Rig.Account.EnqueueDownload("FNV-CH-1102", "product");
    Rig.TakeEvents();

    Rig.Account.EnqueueDownload("NO-SUCH-ID", "product");
    Rig.Account.EnqueueDownload("PVV-CT-0510", "finish");
    Rig.Account.EnqueueDownload("FNV-CH-1102", "product");

    EXPECT_TRUE(Rig.TakeEvents().empty());
    ASSERT_EQ(Rig.Account.GetQueue().GetEntries().size(), 1u);
    EXPECT_EQ(
        Rig.Bridge.Log.Problems(),
        (std::vector<std::string>{
            "Warning: OrvCore (host): download of \"FNV-CH-1102\" (product) not queued: nobody is signed in",
            "Warning: OrvCore (host): download of \"NO-SUCH-ID\" (product) not queued: the catalogue has no "
            "such product",
            "Warning: OrvCore (host): download of \"PVV-CT-0510\" (finish) not queued: only the asset type "
            "\"product\" can be downloaded",
            "Warning: OrvCore (host): download of \"FNV-CH-1102\" (product) not queued: it is already queued",
        }));

    Rig.Account.LogoutUser();
    Rig.Wait(2.0);
    EXPECT_EQ(Rig.TakeEvents(), std::vector<std::string>{"library.updated"}) << "signing out drops the queue";
}

#include "Core/Outliner/OrvOutlinerScanner.h"

#include "Core/Common/OrvLogging.h"
#include "Core/Json/OrvJsonWriter.h"
#include "Core/Outliner/OrvOutlinerBatchAnswer.h"
#include "Core/Outliner/OrvOutlinerTreeBuilder.h"
#include "Core/Outliner/OrvOutlinerWorldWalk.h"

#include <utility>

namespace OrvWebBridge
{
    FOrvOutlinerScanner::FOrvOutlinerScanner(const FOrvOutlinerScannerPorts& InPorts)
        : Ports(InPorts), Lifetime(std::make_shared<FOrvOutlinerScanner*>(this))
    {
    }

    FOrvOutlinerScanner::~FOrvOutlinerScanner()
    {
        CancelScan();
    }

    void FOrvOutlinerScanner::ScanScene(FOrvOutlinerScanComplete OnComplete)
    {
        if (bIsScanning)
        {
            OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Warning,
                    "OrvOutlinerScanner: Scan already in progress");
            return;
        }
        bIsScanning = true;
        PendingOnComplete = std::move(OnComplete);
        const std::uint64_t Serial = ++ScanSerial;
        SceneProducts = ScanWorldForOrvProducts();

        std::vector<std::string> IdsToFetch;
        for (const FOrvSceneProductPtr& Product : SceneProducts)
        {
            const auto Cached = InfoCache.find(Product->ProductID);
            if (Cached != InfoCache.end())
            {
                Product->SetInfo(Cached->second);
            }
            else
            {
                IdsToFetch.push_back(Product->ProductID);
            }
        }

        if (IdsToFetch.empty())
        {
            // Built in the same call as the walk: every actor just listed still exists.
            FinishScan(Serial, EOrvActorCounting::AllListedActorsExist);
            return;
        }
        FetchProductInfoFromAPI(IdsToFetch, [this, Serial](bool)
                                { FinishScan(Serial, EOrvActorCounting::CountLiveActors); });
    }

    void FOrvOutlinerScanner::FinishScan(std::uint64_t Serial, EOrvActorCounting Counting)
    {
        if (!bIsScanning || Serial != ScanSerial)
        {
            return;
        }
        const FOrvOutlinerTreeItems RootItems = BuildTreeItems(SceneProducts, Counting);
        bIsScanning = false;
        // Taken out first: the delegate may start the next scan, which sets a new one.
        FOrvOutlinerScanComplete OnComplete = std::move(PendingOnComplete);
        PendingOnComplete = nullptr;
        if (OnComplete)
        {
            OnComplete(RootItems);
        }
    }

    void FOrvOutlinerScanner::CancelScan()
    {
        bIsScanning = false;
        PendingOnComplete = nullptr;
    }

    void FOrvOutlinerScanner::ClearCache()
    {
        InfoCache.clear();
    }

    FOrvSceneProductMap FOrvOutlinerScanner::ScanWorldForOrvProducts()
    {
        TotalActorCount = 0;
        FOrvSceneProductMap Products;
        if (!Ports.World.HasEditorWorld())
        {
            OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Warning,
                    "OrvOutlinerScanner: No world available");
            return Products;
        }

        FOrvOutlinerWorldWalk Walk = FOrvOutlinerWorldWalk::Run(Ports.World, Ports.Meshes);
        TotalActorCount = Walk.TotalActorCount;
        Products = std::move(Walk.Products);

        OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                "OrvOutlinerScanner: Found %d unique products, %d total actors",
                static_cast<int>(Products.Num()), static_cast<int>(TotalActorCount));
        return Products;
    }

    void FOrvOutlinerScanner::FetchProductInfoFromAPI(const std::vector<std::string>& ProductIds,
                                                      std::function<void(bool)> OnComplete)
    {
        if (ProductIds.empty())
        {
            OnComplete(true);
            return;
        }
        OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Log,
                "OrvOutlinerScanner: Fetching info for %d products from API",
                static_cast<int>(ProductIds.size()));

        std::string Body;
        FOrvJsonWriter Writer(Body, EOrvJsonStyle::Condensed);
        Writer.BeginObject();
        Writer.BeginArray("product_ids");
        for (const std::string& Id : ProductIds)
        {
            Writer.String(Id);
        }
        Writer.EndArray();
        Writer.EndObject();

        std::weak_ptr<FOrvOutlinerScanner*> Alive = Lifetime;
        Ports.Api.Post("/orvvault/products/batch", std::move(Body),
                       [Alive, ProductIds, OnComplete = std::move(OnComplete)](
                           bool bSuccess, std::shared_ptr<const rapidjson::Document> Answer)
                       {
                           if (const std::shared_ptr<FOrvOutlinerScanner*> Scanner = Alive.lock())
                           {
                               (*Scanner)->ApplyBatchAnswer(ProductIds, bSuccess, Answer.get(), OnComplete);
                           }
                       });
    }

    void FOrvOutlinerScanner::ApplyBatchAnswer(const std::vector<std::string>& ProductIds, bool bSuccess,
                                               const rapidjson::Value* Answer,
                                               const std::function<void(bool)>& OnComplete)
    {
        FOrvOutlinerBatchAnswer Read = FOrvOutlinerBatchAnswer::Read(bSuccess, Answer);
        switch (Read.Outcome)
        {
        case EOrvBatchAnswerOutcome::RequestFailed:
            OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Warning,
                    "OrvOutlinerScanner: API request failed");
            for (const std::string& Id : ProductIds)
            {
                StoreInfo(FOrvProductInfo::MakePlaceholder(Id));
            }
            OnComplete(false);
            return;
        case EOrvBatchAnswerOutcome::StatusFalse:
            OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Warning,
                    "OrvOutlinerScanner: API returned status=false");
            OnComplete(false);
            return;
        case EOrvBatchAnswerOutcome::Answered:
            break;
        }

        for (const FOrvProductInfo& Info : Read.Products)
        {
            StoreInfo(Info);
            OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Verbose,
                    "OrvOutlinerScanner: Cached product %s: %s %s (%s / %s)", Info.ProductID.c_str(),
                    Info.Brand.c_str(), Info.Name.c_str(), Info.CategoryT2.c_str(), Info.Category.c_str());
        }
        for (const std::string& Id : Read.Missing)
        {
            StoreInfo(FOrvProductInfo::MakePlaceholder(Id));
            OrvLogf(Ports.Log, EOrvLogCategory::LogTemp, EOrvLogVerbosity::Warning,
                    "OrvOutlinerScanner: Product not found in API: %s", Id.c_str());
        }
        OnComplete(true);
    }

    void FOrvOutlinerScanner::StoreInfo(const FOrvProductInfo& Info)
    {
        InfoCache.insert_or_assign(Info.ProductID, Info);
        if (const FOrvSceneProductPtr Product = SceneProducts.Find(Info.ProductID))
        {
            Product->SetInfo(Info);
        }
    }

    FOrvOutlinerTreeItems FOrvOutlinerScanner::BuildTreeItems(const FOrvSceneProductMap& Products,
                                                              EOrvActorCounting Counting) const
    {
        return FOrvOutlinerTreeBuilder::Build(Products, Ports.World, Counting);
    }
} // namespace OrvWebBridge

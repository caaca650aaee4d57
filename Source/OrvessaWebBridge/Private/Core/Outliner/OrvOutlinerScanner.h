#pragma once

#include "Core/Outliner/OrvOutlinerNameKey.h"
#include "Core/Outliner/OrvOutlinerTreeBuilder.h"
#include "Core/Outliner/OrvOutlinerTreeItems.h"
#include "Core/Outliner/OrvSceneProduct.h"
#include "Core/Ports/IOrvAssetRegistry.h"
#include "Core/Ports/IOrvCatalogApi.h"
#include "Core/Ports/IOrvEditorWorld.h"
#include "Core/Ports/IOrvLog.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace OrvWebBridge
{
    /** @brief Receives the tree's root array: macro category items, then root-level category items. */
    using FOrvOutlinerScanComplete = std::function<void(const FOrvOutlinerTreeItems& RootItems)>;

    /** @brief What the scanner reads: the level, the meshes' product tags and the catalogue service. */
    struct FOrvOutlinerScannerPorts
    {
        IOrvEditorWorld& World;
        IOrvStaticMeshes& Meshes;
        IOrvCatalogApi& Api;
        IOrvLog& Log;
    };

    /**
     * @brief Finds the level's tagged catalogue products, completes them from the catalogue in one batch
     * request per scan (ids already known come from a cache that lives as long as the scanner) and builds
     * the outliner tree. Game thread only.
     */
    class FOrvOutlinerScanner
    {
    public:
        explicit FOrvOutlinerScanner(const FOrvOutlinerScannerPorts& InPorts);
        ~FOrvOutlinerScanner();
        FOrvOutlinerScanner(const FOrvOutlinerScanner&) = delete;
        FOrvOutlinerScanner& operator=(const FOrvOutlinerScanner&) = delete;

        /** Starts a scan; completes later when the catalogue is asked, at once otherwise. Refused while one
         * runs.
         */
        void ScanScene(FOrvOutlinerScanComplete OnComplete);

        /** The products of the last scan. */
        const FOrvSceneProductMap& GetSceneProducts() const { return SceneProducts; }

        /** The number of tagged actors of the last scan (not of unique products). */
        std::int32_t GetTotalProductCount() const { return TotalActorCount; }

        bool IsScanning() const { return bIsScanning; }

        /** Ends the running scan without completing it: a late catalogue answer calls nothing. */
        void CancelScan();

        /** Forgets every product the catalogue told about, so the next scan asks again. */
        void ClearCache();

    private:
        FOrvSceneProductMap ScanWorldForOrvProducts();
        void FetchProductInfoFromAPI(const std::vector<std::string>& ProductIds,
                                     std::function<void(bool)> OnComplete);
        void ApplyBatchAnswer(const std::vector<std::string>& ProductIds, bool bSuccess,
                              const rapidjson::Value* Answer, const std::function<void(bool)>& OnComplete);
        void StoreInfo(const FOrvProductInfo& Info);
        FOrvOutlinerTreeItems BuildTreeItems(const FOrvSceneProductMap& Products,
                                             EOrvActorCounting Counting) const;
        void FinishScan(std::uint64_t Serial, EOrvActorCounting Counting);

        FOrvOutlinerScannerPorts Ports;
        TOrvOutlinerNameMap<FOrvProductInfo> InfoCache;
        bool bIsScanning = false;
        std::int32_t TotalActorCount = 0;
        FOrvOutlinerScanComplete PendingOnComplete;
        FOrvSceneProductMap SceneProducts;

        /** Tells a late catalogue answer which scan it belongs to, so a cancelled scan's answer completes
         * nothing. */
        std::uint64_t ScanSerial = 0;

        /** Expires with the scanner, so an answer arriving after it is gone touches nothing. */
        std::shared_ptr<FOrvOutlinerScanner*> Lifetime;
    };
} // namespace OrvWebBridge

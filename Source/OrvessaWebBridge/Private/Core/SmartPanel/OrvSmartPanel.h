#pragma once

#include "Core/Common/OrvStrings.h"
#include "Core/Common/OrvTypes.h"
#include "Core/Ports/IOrvAssetRegistry.h"
#include "Core/Ports/IOrvClipboard.h"
#include "Core/Ports/IOrvContentBrowser.h"
#include "Core/Ports/IOrvEditorSelection.h"
#include "Core/Ports/IOrvEditorWorld.h"
#include "Core/Ports/IOrvLog.h"
#include "Core/Ports/IOrvWebPanel.h"
#include "Core/Ports/IOrvWidgetFocus.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief What the smart panel reads and drives in the editor. */
    struct FOrvSmartPanelPorts
    {
        IOrvEditorSelection& Selection;
        IOrvEditorWorld& World;
        IOrvStaticMeshes& Meshes;
        IOrvAssetRegistry& Assets;
        IOrvContentBrowser& ContentBrowser;
        IOrvWidgetFocus& Focus;
        IOrvWebPanel& Panel;
        IOrvClipboard& Clipboard;
        IOrvLog& Log;
    };

    /**
     * @brief Makes the catalogue panel follow the editor: a product actor selected in the viewport, or a
     * finish material or product mesh selected in the Content Browser, opens that item's page on the
     * catalogue site. Automatic while auto-detect is on (off at start), on demand with Alt+R.
     *
     * Products and finishes share one remembered id, compared ignoring case: selecting the item already
     * shown does not reload the page. Alt+R always loads and never touches the remembered id.
     */
    class FOrvSmartPanel
    {
    public:
        /** The metadata key of a finish material's catalogue id. */
        static constexpr std::string_view FinishIdKey = "Orv_FinishID";

        /** The asset classes the Content Browser handlers look at, by short class name. */
        static constexpr std::string_view MaterialInstanceClass = "MaterialInstanceConstant";
        static constexpr std::string_view StaticMeshClass = "StaticMesh";

        /** SiteBaseUrl: the catalogue site, without a trailing slash ("https://orvessa.com"). */
        FOrvSmartPanel(const FOrvSmartPanelPorts& InPorts, std::string InSiteBaseUrl);

        /** The "Auto-Detect" check box: sets the flag and logs it. */
        void SetAutoDetect(bool bEnabled);
        bool IsAutoDetectEnabled() const { return bAutoDetect; }

        /** The viewport's selection changed (USelection::SelectionChangedEvent). */
        void OnViewportSelectionChanged();

        /** The Content Browser's asset selection changed; Selected as its delegate passes it. */
        void OnContentBrowserSelectionChanged(const std::vector<FOrvAssetData>& Selected);

        /** Alt+R (command ViewProductDetails): the details of what is selected where the focus is. */
        void ViewProductDetails();

        /** "Copy URL": the panel's current URL to the clipboard. */
        void CopyUrl();

        /** The first UOrvProductData among the mesh's asset user data (whether valid or not). */
        std::optional<FOrvProductTag> GetProductDataFromMesh(FOrvMeshRef Mesh);

    private:
        /** Auto-navigation to an id: skipped (Verbose, naming Kind) when it is the one shown. */
        void ShowUnlessDisplayed(const std::string& Id, bool bFinish);
        void ShowProduct(const std::string& ProductId);
        void ShowFinish(const std::string& FinishId);

        /** The first valid product of the selected actors' static mesh components, in order. */
        std::optional<std::string> FindSelectedProduct(const std::vector<FOrvActorRef>& Actors);

        /** The id an asset of the Content Browser leads to, auto-detect's way; nothing for other assets. */
        std::optional<std::string> FindAssetId(const FOrvAssetData& Asset, bool& bFinish);

        bool IsContentBrowserFocused();
        void AltRFromViewport(const std::vector<FOrvActorRef>& Actors);
        void AltRFromContentBrowser();
        bool AltRMaterialInstance(const FOrvAssetData& Asset);
        bool AltRStaticMesh(const FOrvAssetData& Asset);
        void LoadInPanel(const std::string& Url);

        std::string ProductUrl(std::string_view ProductId) const;
        std::string FinishUrl(std::string_view FinishId) const;

        void Logf(EOrvLogVerbosity Verbosity, const char* Format, ...) ORV_PRINTF_FORMAT(3, 4);

        FOrvSmartPanelPorts Ports;
        std::string SiteBaseUrl;
        bool bAutoDetect = false;
        std::string LastDisplayedId; ///< products and finishes alike
    };

    /** @brief The short class name of an asset's class path ("/Script/Engine.StaticMesh" -> "StaticMesh"). */
    std::string_view OrvAssetClassName(const FOrvAssetData& Asset);
} // namespace OrvWebBridge

#pragma once

#include "Core/SmartPanel/OrvSmartPanel.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Tests/Support/OrvFakeWebPanel.h"
#include "Tests/Support/OrvRecordingLog.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace OrvWebBridge
{
    class FOrvRecordingClipboard : public IOrvClipboard
    {
    public:
        void ClipboardCopy(std::string_view Text) override { Copies.emplace_back(Text); }

        std::vector<std::string> Copies;
    };

    class FOrvFixedWidgetFocus : public IOrvWidgetFocus
    {
    public:
        std::vector<std::string> GetFocusedWidgetTypes() const override { return Types; }

        std::vector<std::string> Types{"SViewport", "SLevelViewport", "SWindow"};
    };

    /**
     * @brief A smart panel on an in-memory project, wired to the editor's selection events as the module
     * wires it: products SOFA-1, CHAIR-1, VASE-1 (second component of "VaseOnPlinth"), OLD-1 (invalid tag),
     * finishes MI_Oak (OAK-1) and MI_SofaFabric ("sofa-1", a product's id in other letter case), MI_Plain
     * without a finish id. The panel is open; auto-detect is off as after start-up.
     */
    class FOrvSmartPanelTestRig : public ::testing::Test
    {
    public:
        static constexpr const char* Site = "https://site.test";

        FOrvSmartPanelTestRig()
        {
            const auto Mesh = [this](const char* Name, std::optional<FOrvProductTag> Tag) {
                return Editor.AddStaticMesh({std::string("/Game/ORVESSA/P/") + Name, {}, std::move(Tag)});
            };
            const FOrvMeshRef Sofa = Mesh("SM_Sofa", FOrvProductTag{"SOFA-1", true});
            const FOrvMeshRef Chair = Mesh("SM_Chair", FOrvProductTag{"CHAIR-1", true});
            const FOrvMeshRef Old = Mesh("SM_Old", FOrvProductTag{"OLD-1", false});
            const FOrvMeshRef Plinth = Mesh("SM_Plinth", std::nullopt);
            const FOrvMeshRef Vase = Mesh("SM_Vase", FOrvProductTag{"VASE-1", true});
            const auto Material = [this](const char* Name, FOrvMemoryMetaData MetaData)
            {
                Editor.AddAsset({std::string("/Game/ORVESSA/P/") + Name, "/Game/ORVESSA/P", Name,
                                 "/Script/Engine.MaterialInstanceConstant"},
                                std::move(MetaData));
            };
            Material("MI_Oak", {{"Orv_FinishID", "OAK-1"}});
            Material("MI_SofaFabric", {{"orv_finishid", "sofa-1"}});
            Material("MI_Plain", {{"Author", "someone"}});
            Editor.AddAsset(
                {"/Game/ORVESSA/P/T_Oak", "/Game/ORVESSA/P", "T_Oak", "/Script/Engine.Texture2D"});
            Editor.AddActor({"Sofa", "", "StaticMeshActor", {}, {Sofa}});
            Editor.AddActor({"Chair", "", "StaticMeshActor", {}, {Chair}});
            Editor.AddActor({"OldTable", "", "StaticMeshActor", {}, {Old}});
            Editor.AddActor({"VaseOnPlinth", "", "Actor", {}, {Plinth, Vase}});
            Editor.AddActor({"Sun", "", "DirectionalLight", {}, {}});
            Editor.AddSelectionChangedHandler([this] { SmartPanel.OnViewportSelectionChanged(); });
            Editor.AddAssetSelectionChangedHandler([this](const std::vector<FOrvAssetData>& Assets)
                                                   { SmartPanel.OnContentBrowserSelectionChanged(Assets); });
        }

        /** Selects actors by name in the viewport, as a click does: one change notification. */
        void SelectActors(std::initializer_list<const char*> Names)
        {
            Editor.Selection().SelectNone();
            for (const char* Name : Names)
            {
                const FOrvMemoryActor* Actor = Editor.FindActorByName(Name);
                ASSERT_NE(Actor, nullptr) << Name;
                Editor.Selection().SelectActor(Actor->Ref);
            }
            Editor.Selection().NoteSelectionChange();
        }

        /** Selects assets by asset name in the Content Browser; an unknown name stands for an asset that
         *  the registry lists as Class but that does not load. */
        void SelectAssets(std::initializer_list<const char*> Names, const char* Class = "")
        {
            std::vector<FOrvAssetData> Selected;
            for (const char* Name : Names)
            {
                FOrvAssetData Asset{std::string("/Game/Gone/") + Name, "/Game/Gone", Name, Class};
                for (const FOrvAssetData& Registered : Editor.GetRegisteredAssets())
                {
                    Asset = Registered.AssetName == Name ? Registered : Asset;
                }
                Selected.push_back(Asset);
            }
            Editor.SetContentBrowserSelection(Selected);
        }

        static std::string ProductPage(const std::string& Id)
        {
            return std::string(Site) + "/go/product/" + Id;
        }
        static std::string FinishPage(const std::string& Id)
        {
            return std::string(Site) + "/go/finish/" + Id;
        }

        FOrvMemoryEditor Editor;
        FOrvFakeWebPanel Panel;
        FOrvRecordingLog Log;
        FOrvRecordingClipboard Clipboard;
        FOrvFixedWidgetFocus Focus;
        FOrvSmartPanel SmartPanel{{Editor.Selection(), Editor.World(), Editor.Meshes(), Editor.Assets(),
                                   Editor.ContentBrowser(), Focus, Panel, Clipboard, Log},
                                  Site};
    };
} // namespace OrvWebBridge

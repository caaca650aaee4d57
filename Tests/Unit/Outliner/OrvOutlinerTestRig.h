#pragma once

#include "Core/Json/OrvJson.h"
#include "Core/Outliner/OrvOutlinerPanelModel.h"
#include "Core/Outliner/OrvOutlinerScanner.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Outliner/OrvHostEditorUi.h"
#include "Tests/Support/OrvFakeTimers.h"
#include "Tests/Support/OrvRecordingLog.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace OrvWebBridge
{
    /** @brief A catalogue service that keeps every request until the test answers the oldest open one. */
    class FOrvFakeCatalogApi : public IOrvCatalogApi
    {
    public:
        struct FRequest
        {
            std::string Path;
            std::string Body;
            FOrvApiCallback OnComplete;
            bool bAnswered = false;
        };

        void Post(std::string_view Path, std::string JsonBody, FOrvApiCallback OnComplete) override
        {
            Requests.push_back({std::string(Path), std::move(JsonBody), std::move(OnComplete)});
        }
        std::vector<FOrvCookie> GetCookies() const override { return {}; }
        void SetCookie(const FOrvCookie&) override {}

        /** A successful answer; its document is null when JsonText is not an object. */
        void Answer(const std::string& JsonText)
        {
            auto Document = std::make_shared<rapidjson::Document>();
            const bool bObject = FOrvJson::ParseObject(JsonText, *Document);
            Complete(true, bObject ? Document : nullptr);
        }
        void Fail() { Complete(false, nullptr); }

        std::vector<FRequest> Requests;

    private:
        void Complete(bool bSuccess, std::shared_ptr<const rapidjson::Document> Document)
        {
            for (FRequest& Request : Requests)
            {
                if (!Request.bAnswered)
                {
                    Request.bAnswered = true;
                    FOrvApiCallback OnComplete = Request.OnComplete; // the callback may add requests
                    OnComplete(bSuccess, std::move(Document));
                    return;
                }
            }
            ADD_FAILURE() << "no open catalogue request to answer";
        }
    };

    /** @brief A save dialog that answers as told, and files kept in memory. */
    class FOrvFakeFiles : public IOrvFiles
    {
    public:
        bool IsDesktopPlatformAvailable() const override { return bDesktopPlatform; }
        bool SaveFileDialog(const FOrvSaveDialogRequest& Request, std::vector<std::string>& OutFiles) override
        {
            ++DialogsShown;
            LastRequest = Request;
            if (DialogAnswer)
            {
                OutFiles = *DialogAnswer;
            }
            return DialogAnswer.has_value();
        }
        bool SaveStringToFile(std::string_view Text, const std::string& FilePath) override
        {
            if (!bFailWrites)
            {
                Written[FilePath] = std::string(Text);
            }
            return !bFailWrites;
        }

        bool bDesktopPlatform = true;
        bool bFailWrites = false;
        std::optional<std::vector<std::string>> DialogAnswer =
            std::vector<std::string>{"/Exports/Schedule.csv"};
        int DialogsShown = 0;
        FOrvSaveDialogRequest LastRequest;
        std::map<std::string, std::string> Written;
    };

    class FOrvFakeEnvironment : public IOrvEnvironment
    {
    public:
        std::string GetProjectDir() const override { return "/Projects/Villa/"; }
        std::optional<std::string> FindPluginVersion(std::string_view PluginName) const override
        {
            return PluginName == "ORVESSA" ? PluginVersion : std::nullopt;
        }
        std::string GetLocalDate() const override { return "2025-03-14"; }

        std::optional<std::string> PluginVersion = "1.2.3";
    };

    /** @brief The in-memory editor with catalogue meshes, plus fakes for the rest of the outliner's ports. */
    struct FOrvOutlinerRig
    {
        FOrvMemoryEditor Editor;
        FOrvFakeCatalogApi Api;
        FOrvFakeTimers Timers;
        FOrvHostEditorUi Ui; ///< records what the panel asked of the editor
        FOrvFakeFiles Files;
        FOrvFakeEnvironment Environment;
        FOrvRecordingLog Log;

        FOrvMeshRef AddProductMesh(const std::string& AssetName, const std::string& ProductId,
                                   bool bValidTag = true)
        {
            return Editor.AddStaticMesh(
                {"/Game/ORVESSA/Meshes/" + AssetName, {}, FOrvProductTag{ProductId, bValidTag}});
        }
        /** A mesh without a product tag (walls, floors). */
        FOrvMeshRef AddPlainMesh(const std::string& AssetName)
        {
            return Editor.AddStaticMesh({"/Game/Architecture/" + AssetName, {}, std::nullopt});
        }
        FOrvActorRef AddActor(std::vector<FOrvMeshRef> Components)
        {
            FOrvMemoryActorDesc Desc;
            Desc.StaticMeshComponents = std::move(Components);
            return Editor.AddActor(Desc);
        }
        std::vector<FOrvActorRef> AddActors(FOrvMeshRef Mesh, int Count)
        {
            std::vector<FOrvActorRef> Actors;
            while (Count-- > 0)
            {
                Actors.push_back(AddActor({Mesh}));
            }
            return Actors;
        }
        void Destroy(FOrvActorRef Actor) { Editor.Editing().EditorDestroyActor(Actor); }

        FOrvOutlinerScannerPorts ScannerPorts() { return {Editor.World(), Editor.Meshes(), Api, Log}; }
        FOrvOutlinerPanelPorts PanelPorts()
        {
            return {Editor.World(),
                    Editor.LevelEvents(),
                    Editor.Meshes(),
                    Api,
                    Editor.Selection(),
                    Editor.Editing(),
                    Timers,
                    Ui,
                    Files,
                    Environment,
                    Log};
        }
    };

    /** @brief A product's info with the fields every view shows; the others empty. */
    inline FOrvProductInfo OrvTestInfo(const std::string& Id, const std::string& Brand,
                                       const std::string& Name, const std::string& Category)
    {
        return {Id, Name, Brand, Category, "", "", "", "", "", "", ""};
    }

    /** @brief One catalogue record as the batch answer carries it. */
    inline std::string OrvTestRecord(const std::string& Id, const std::string& Brand, const std::string& Name,
                                     const std::string& Category, const std::string& MacroCategory = "")
    {
        return "{\"id\":\"" + Id + "\",\"name\":\"" + Name + "\",\"brand\":\"" + Brand +
               "\",\"category\":\"" + Category + "\",\"category_t2\":\"" + MacroCategory + "\"}";
    }

    /** @brief A batch answer with status true, products keyed by id as the service sends them. */
    inline std::string OrvTestAnswer(const std::vector<std::pair<std::string, std::string>>& IdAndRecord,
                                     const std::string& MissingJsonArray = "[]")
    {
        std::string Products;
        for (const auto& [Id, Record] : IdAndRecord)
        {
            Products += (Products.empty() ? "\"" : ",\"") + Id + "\":" + Record;
        }
        return "{\"status\":true,\"products\":{" + Products + "},\"missing\":" + MissingJsonArray + "}";
    }
} // namespace OrvWebBridge

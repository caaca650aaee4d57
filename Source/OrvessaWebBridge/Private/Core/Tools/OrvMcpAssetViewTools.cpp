// The tools that help an AI client plan a placement: ue_list_available_assets, ue_get_asset_bounds,
// ue_capture_view and ue_placement_guide.
#include "Core/Common/OrvConstants.h"
#include "Core/Common/OrvStrings.h"
#include "Core/Json/OrvJson.h"
#include "Core/Mcp/OrvMcpHandler.h"
#include "Core/Tools/OrvMcpToolHelpers.h"
#include "Core/Tools/OrvPlacementGuide.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

namespace OrvWebBridge
{
    namespace
    {
        constexpr const char* OrvAssetViewMissingAssetPath =
            R"({"error":"missing_argument","message":"asset_path is required."})";
        constexpr const char* OrvAssetViewAssetNotFound =
            R"({"error":"asset_not_found","message":"Could not resolve %s. Call ue_list_available_assets for valid paths."})";

        constexpr std::int32_t OrvAssetViewDefaultQuality = 80;

        // "quality" counts only as a JSON number (the text "high" keeps the default), read as the engine
        // reads an int32 field: rounded half away from zero, and not read at all when out of the int32 range.
        std::int32_t OrvAssetViewQuality(const rapidjson::Value& Arguments)
        {
            const rapidjson::Value* Field = FOrvJson::FindField(Arguments, "quality");
            if (!Field || !Field->IsNumber())
            {
                return OrvAssetViewDefaultQuality;
            }
            const double Requested = Field->GetDouble();
            if (!(Requested >= std::numeric_limits<std::int32_t>::min() &&
                  Requested <= std::numeric_limits<std::int32_t>::max()))
            {
                return OrvAssetViewDefaultQuality;
            }
            std::int32_t Quality = static_cast<std::int32_t>(std::round(Requested));
            Quality = Quality > 100 ? 100 : Quality;
            Quality = Quality < 1 ? 1 : Quality;
            return Quality;
        }
    } // namespace

    void FOrvMcpHandler::ToolUeListAvailableAssets(const rapidjson::Value&, FOrvMcpToolCompletion OnComplete)
    {
        Ports.GameThread.Post(
            [Ports = Ports, OnComplete = std::move(OnComplete)]()
            {
                const std::vector<FOrvAssetData> Assets =
                    Ports.Assets.GetAssetsByPath(FOrvConstants::AssetRoot, true);
                std::string Text = FOrvMcpToolHelpers::WriteJsonObject(
                    [&Assets](FOrvJsonWriter& Writer)
                    {
                        std::int64_t Count = 0;
                        std::string ObjectPath;
                        Writer.BeginArray("assets");
                        for (const FOrvAssetData& Asset : Assets)
                        {
                            if (!FOrvMcpToolHelpers::IsStaticMeshAsset(Asset))
                            {
                                continue;
                            }
                            ObjectPath.assign(Asset.PackageName).append(1, '.').append(Asset.AssetName);
                            Writer.String(ObjectPath);
                            ++Count;
                        }
                        Writer.EndArray();
                        Writer.Integer("count", Count);
                    },
                    64 + Assets.size() * 96);
                OnComplete(MakeContentText(std::move(Text)));
            });
    }

    void FOrvMcpHandler::ToolUeGetAssetBounds(const rapidjson::Value& Arguments,
                                              FOrvMcpToolCompletion OnComplete)
    {
        std::string AssetPath;
        if (!FOrvMcpToolHelpers::TryGetRequiredString(Arguments, "asset_path", AssetPath))
        {
            OnComplete(MakeContentText(OrvAssetViewMissingAssetPath));
            return;
        }

        // Unlike a spawn, any path that loads is measured: reading bounds changes nothing.
        Ports.GameThread.Post(
            [Ports = Ports, OnComplete = std::move(OnComplete), AssetPath = std::move(AssetPath)]()
            {
                const FOrvMeshRef Mesh = FOrvMcpToolHelpers::ResolveStaticMesh(Ports.Assets, AssetPath);
                if (!Mesh)
                {
                    OnComplete(
                        MakeContentText(FOrvStrings::Printf(OrvAssetViewAssetNotFound, AssetPath.c_str())));
                    return;
                }
                const FOrvBox Bounds = Ports.Meshes.GetBoundingBox(Mesh);
                OnComplete(MakeContentText(FOrvMcpToolHelpers::WriteJsonObject(
                    [&](FOrvJsonWriter& Writer)
                    {
                        FOrvMcpToolHelpers::BuildBoundsObject(Writer, Bounds);
                        Writer.String("asset_path", AssetPath);
                    })));
            });
    }

    void FOrvMcpHandler::ToolUeCaptureView(const rapidjson::Value& Arguments,
                                           FOrvMcpToolCompletion OnComplete)
    {
        const std::int32_t Quality = OrvAssetViewQuality(Arguments);
        // The capture object travels with the task: it keeps the pixel buffer between captures and must
        // stay alive even if the handler is gone by the time the task runs.
        Ports.GameThread.Post(
            [Ports = Ports, Capturer = Capture, OnComplete = std::move(OnComplete), Quality]()
            { OnComplete(Capturer->Capture(Ports.Viewport, Ports.Images, Quality)); });
    }

    void FOrvMcpHandler::ToolUePlacementGuide(const rapidjson::Value&, FOrvMcpToolCompletion OnComplete)
    {
        OnComplete(MakeContentText(std::string(FOrvPlacementGuide::Text())));
    }
} // namespace OrvWebBridge

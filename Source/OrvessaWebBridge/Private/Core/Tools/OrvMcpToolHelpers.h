#pragma once

#include "Core/Common/OrvTypes.h"
#include "Core/Json/OrvJsonWriter.h"
#include "Core/Ports/IOrvAssetRegistry.h"
#include "Core/Ports/IOrvEditorWorld.h"

#include "Core/Json/OrvRapidJson.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace OrvWebBridge
{
    /** @brief An optional [a, b, c] argument as a tool task carries it: whether it was given, and its values.
     */
    struct FOrvVectorArgument
    {
        bool bIsSet = false;
        double A = 0.0;
        double B = 0.0;
        double C = 0.0;
    };

    /** @brief Argument reading, actor and mesh look-up and result pieces shared by the editor tools. */
    struct FOrvMcpToolHelpers
    {
        /** The first actor whose object name equals Id ignoring case; a null ref without a world or a match.
         */
        static FOrvActorRef FindActorById(const IOrvEditorWorld& World, std::string_view Id);

        /**
         * Reads Key as an [a, b, c] array. False, outputs untouched, when absent, not an array or shorter
         * than three; a non-number element reads as 0 and elements past the third are ignored.
         */
        static bool TryGetVectorArgument(const rapidjson::Value& Arguments, std::string_view Key,
                                         double& OutA, double& OutB, double& OutC);

        /** TryGetVectorArgument into the form a queued task keeps. */
        static FOrvVectorArgument GetVectorArgument(const rapidjson::Value& Arguments, std::string_view Key);

        /** Copies a string argument into Out; false when it is absent, not a string, or empty. */
        static bool TryGetRequiredString(const rapidjson::Value& Arguments, std::string_view Key,
                                         std::string& Out);

        /**
         * The static mesh an asset path or a bare asset name stands for: the object path as loaded, else the
         * first catalogue mesh under the asset root named like the path's last part (with "SM_" put in
         * front unless already there), compared ignoring case. A null ref when nothing matches.
         */
        static FOrvMeshRef ResolveStaticMesh(IOrvAssetRegistry& Assets, std::string_view AssetPath);

        /** How a box sits on its pivot: "floor-back", "floor-center", "ceiling", "wall" or "custom". */
        static const char* GetMountingHint(const FOrvBox& Box);

        /** Writes the bounds members "size", "bbox_min", "bbox_max", "mounting_hint", "forward" into the open
         * object. */
        static void BuildBoundsObject(FOrvJsonWriter& Writer, const FOrvBox& Box);

        /** The unit direction a rotation looks along, as the engine's FRotator::Vector. */
        static FOrvVector RotatorToDirection(const FOrvRotator& Rotation);

        /** Whether an asset's class path names a static mesh (ignoring case, as the registry filter does). */
        static bool IsStaticMeshAsset(const FOrvAssetData& Asset);

        /** A result object as pretty JSON text: WriteMembers fills the root object. */
        template <typename TWriteMembers>
        static std::string WriteJsonObject(TWriteMembers&& WriteMembers, std::size_t ReserveBytes = 256)
        {
            std::string Text;
            Text.reserve(ReserveBytes);
            FOrvJsonWriter Writer(Text);
            Writer.BeginObject();
            WriteMembers(Writer);
            Writer.EndObject();
            return Text;
        }
    };
} // namespace OrvWebBridge

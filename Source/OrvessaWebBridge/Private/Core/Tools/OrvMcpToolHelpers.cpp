#include "Core/Tools/OrvMcpToolHelpers.h"

#include "Core/Common/OrvConstants.h"
#include "Core/Common/OrvStrings.h"
#include "Core/Json/OrvJson.h"

#include <cmath>
#include <numbers>

namespace OrvWebBridge
{
    namespace
    {
        // The engine's FMath::Max: a NaN first operand yields the second one, so a NaN extent keeps the
        // 2 cm tolerance floor instead of poisoning every comparison.
        double OrvMountingMax(double A, double B)
        {
            return (B < A) ? A : B;
        }

        double OrvVectorElement(const rapidjson::Value& Element)
        {
            return Element.IsNumber() ? Element.GetDouble() : 0.0;
        }
    } // namespace

    FOrvActorRef FOrvMcpToolHelpers::FindActorById(const IOrvEditorWorld& World, std::string_view Id)
    {
        if (!World.HasEditorWorld())
        {
            return {};
        }
        for (const FOrvActorRef Actor : World.GetActors())
        {
            if (FOrvStrings::EqualsIgnoreCase(World.GetActorName(Actor), Id))
            {
                return Actor;
            }
        }
        return {};
    }

    bool FOrvMcpToolHelpers::TryGetVectorArgument(const rapidjson::Value& Arguments, std::string_view Key,
                                                  double& OutA, double& OutB, double& OutC)
    {
        const rapidjson::Value* Array = FOrvJson::TryGetArrayField(Arguments, Key);
        if (!Array || Array->Size() < 3)
        {
            return false;
        }
        OutA = OrvVectorElement((*Array)[0]);
        OutB = OrvVectorElement((*Array)[1]);
        OutC = OrvVectorElement((*Array)[2]);
        return true;
    }

    FOrvVectorArgument FOrvMcpToolHelpers::GetVectorArgument(const rapidjson::Value& Arguments,
                                                             std::string_view Key)
    {
        FOrvVectorArgument Vector;
        Vector.bIsSet = TryGetVectorArgument(Arguments, Key, Vector.A, Vector.B, Vector.C);
        return Vector;
    }

    bool FOrvMcpToolHelpers::TryGetRequiredString(const rapidjson::Value& Arguments, std::string_view Key,
                                                  std::string& Out)
    {
        const rapidjson::Value* Field = FOrvJson::FindField(Arguments, Key);
        if (!Field || !Field->IsString() || Field->GetStringLength() == 0)
        {
            return false;
        }
        Out.assign(Field->GetString(), Field->GetStringLength());
        return true;
    }

    bool FOrvMcpToolHelpers::IsStaticMeshAsset(const FOrvAssetData& Asset)
    {
        return FOrvStrings::EqualsIgnoreCase(Asset.ClassPath, FOrvConstants::StaticMeshClassPath);
    }

    FOrvMeshRef FOrvMcpToolHelpers::ResolveStaticMesh(IOrvAssetRegistry& Assets, std::string_view AssetPath)
    {
        if (const FOrvMeshRef Loaded = Assets.LoadStaticMesh(AssetPath))
        {
            return Loaded;
        }

        std::string_view Name = AssetPath;
        if (const std::size_t Dot = Name.rfind('.'); Dot != std::string_view::npos)
        {
            Name.remove_prefix(Dot + 1);
        }
        if (const std::size_t Slash = Name.rfind('/'); Slash != std::string_view::npos)
        {
            Name.remove_prefix(Slash + 1);
        }
        if (Name.empty())
        {
            return {};
        }
        const std::string Candidate =
            FOrvStrings::StartsWithIgnoreCase(Name, "SM_") ? std::string(Name) : "SM_" + std::string(Name);

        for (const FOrvAssetData& Asset : Assets.GetAssetsByPath(FOrvConstants::AssetRoot, true))
        {
            if (IsStaticMeshAsset(Asset) && FOrvStrings::EqualsIgnoreCase(Asset.AssetName, Candidate))
            {
                return Assets.LoadStaticMeshAsset(Asset);
            }
        }
        return {};
    }

    const char* FOrvMcpToolHelpers::GetMountingHint(const FOrvBox& Box)
    {
        const double SizeY = Box.Max.Y - Box.Min.Y;
        const double SizeZ = Box.Max.Z - Box.Min.Z;
        const double TolZ = OrvMountingMax(0.05 * SizeZ, 2.0);
        const double TolY = OrvMountingMax(0.05 * SizeY, 2.0);

        const bool bOnFloor = std::fabs(Box.Min.Z) <= TolZ;
        const bool bHanging = std::fabs(Box.Max.Z) <= TolZ;
        const bool bCentredZ = std::fabs(Box.Min.Z + Box.Max.Z) <= TolZ;
        // Written as the negation so that a NaN face counts as touching the pivot.
        const bool bBackFace = !(std::fabs(Box.Min.Y) > TolY && std::fabs(Box.Max.Y) > TolY);

        if (bOnFloor)
        {
            return bBackFace ? "floor-back" : "floor-center";
        }
        if (bHanging)
        {
            return "ceiling";
        }
        if (bCentredZ && bBackFace)
        {
            return "wall";
        }
        return "custom";
    }

    void FOrvMcpToolHelpers::BuildBoundsObject(FOrvJsonWriter& Writer, const FOrvBox& Box)
    {
        Writer.Vector3("size", Box.Max.X - Box.Min.X, Box.Max.Y - Box.Min.Y, Box.Max.Z - Box.Min.Z);
        Writer.Vector3("bbox_min", Box.Min.X, Box.Min.Y, Box.Min.Z);
        Writer.Vector3("bbox_max", Box.Max.X, Box.Max.Y, Box.Max.Z);
        Writer.String("mounting_hint", GetMountingHint(Box));
        Writer.String("forward", "+Y");
    }

    FOrvVector FOrvMcpToolHelpers::RotatorToDirection(const FOrvRotator& Rotation)
    {
        // As the engine: winding removed first, so large angles keep their precision.
        constexpr double DegreesToRadians = std::numbers::pi / 180.0;
        const double Pitch = std::fmod(Rotation.Pitch, 360.0) * DegreesToRadians;
        const double Yaw = std::fmod(Rotation.Yaw, 360.0) * DegreesToRadians;
        const double CosPitch = std::cos(Pitch);
        return {CosPitch * std::cos(Yaw), CosPitch * std::sin(Yaw), std::sin(Pitch)};
    }
} // namespace OrvWebBridge

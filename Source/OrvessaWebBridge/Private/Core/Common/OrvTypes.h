#pragma once

#include <cstdint>
#include <string>

namespace OrvWebBridge
{
    /** @brief World-space location in centimetres (X forward, Y right, Z up, as the engine). */
    struct FOrvVector
    {
        double X = 0.0;
        double Y = 0.0;
        double Z = 0.0;

        friend bool operator==(const FOrvVector&, const FOrvVector&) = default;
    };

    /** @brief Rotation in degrees, in the engine's pitch / yaw / roll order. */
    struct FOrvRotator
    {
        double Pitch = 0.0;
        double Yaw = 0.0;
        double Roll = 0.0;

        friend bool operator==(const FOrvRotator&, const FOrvRotator&) = default;
    };

    /** @brief Location and rotation of an actor or a camera. */
    struct FOrvTransform
    {
        FOrvVector Location;
        FOrvRotator Rotation;

        friend bool operator==(const FOrvTransform&, const FOrvTransform&) = default;
    };

    /** @brief Axis-aligned box, in the mesh's local space for static meshes. */
    struct FOrvBox
    {
        FOrvVector Min;
        FOrvVector Max;

        friend bool operator==(const FOrvBox&, const FOrvBox&) = default;
    };

    /** @brief Size of a viewport in pixels. */
    struct FOrvIntPoint
    {
        std::int32_t X = 0;
        std::int32_t Y = 0;
    };

    /** @brief One 8-bit pixel in the engine's FColor memory order (B, G, R, A). */
    struct FOrvColor
    {
        std::uint8_t B = 0;
        std::uint8_t G = 0;
        std::uint8_t R = 0;
        std::uint8_t A = 0;
    };

    /**
     * @brief Weak reference to an actor of the editor world.
     * Zero means none; a reference to a destroyed actor stays safe to pass back to the ports.
     */
    struct FOrvActorRef
    {
        std::uint64_t Value = 0;

        explicit operator bool() const { return Value != 0; }
        friend bool operator==(const FOrvActorRef&, const FOrvActorRef&) = default;
    };

    /** @brief Weak reference to a loaded static mesh asset; zero means none. */
    struct FOrvMeshRef
    {
        std::uint64_t Value = 0;

        explicit operator bool() const { return Value != 0; }
        friend bool operator==(const FOrvMeshRef&, const FOrvMeshRef&) = default;
    };

    /** @brief The product tag that the import module attaches to catalogue meshes. */
    struct FOrvProductTag
    {
        std::string ProductID;
        bool bIsValid = false;
    };

    /** @brief One asset registry entry, as the registry's asset data describes it. */
    struct FOrvAssetData
    {
        std::string PackageName; ///< "/Game/ORVESSA/Brand/Meshes/SM_X"
        std::string PackagePath; ///< "/Game/ORVESSA/Brand/Meshes"
        std::string AssetName;   ///< "SM_X"
        std::string ClassPath;   ///< "/Script/Engine.StaticMesh"
    };
} // namespace OrvWebBridge

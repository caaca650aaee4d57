#pragma once

#include "Core/Common/OrvTypes.h"
#include "Host/Editor/OrvMemoryEditor.h"

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace OrvWebBridge
{
    /**
     * @brief The in-memory project's content: every registered asset in registry order, and the static
     * meshes among them. Meshes are always loaded; a mesh reference stays valid for the session.
     */
    class FOrvMemoryAssetStore
    {
    public:
        static constexpr std::string_view StaticMeshClassPath = "/Script/Engine.StaticMesh";
        static constexpr std::string_view MaterialInstanceClassPath =
            "/Script/Engine.MaterialInstanceConstant";

        /** Registers a static mesh; null when the package name is empty or already registered. */
        FOrvMeshRef AddStaticMesh(const FOrvMemoryMeshDesc& Mesh);

        /** Registers a non-mesh asset and its package metadata; false when its package name is empty or
         *  already registered. */
        bool AddAsset(const FOrvAssetData& Asset, FOrvMemoryMetaData MetaData = {});

        /** The registered asset of a package name (ignoring case), or null. */
        const FOrvAssetData* FindAsset(std::string_view PackageName) const;

        /** The package's metadata; empty for a package without any. */
        const FOrvMemoryMetaData& GetMetaData(std::string_view PackageName) const;

        /** What loading the asset as a material instance and reading its metadata under Key answers:
         *  nothing unless it is a registered material instance, "" when the key is absent. */
        std::optional<std::string> FindMaterialInstanceMetaData(const FOrvAssetData& Asset,
                                                                std::string_view Key) const;

        /** Every asset in registration order. */
        const std::vector<FOrvAssetData>& GetRegisteredAssets() const { return Registry; }

        /** The registry query: assets whose package path is PackagePath (or lies below it when recursive). */
        std::vector<FOrvAssetData> GetAssetsByPath(std::string_view PackagePath, bool bRecursive) const;

        /** The mesh of an object path ("Package.Asset"), or of a package path whose main asset is a mesh. */
        FOrvMeshRef FindMeshByObjectPath(std::string_view ObjectPath) const;

        /** The mesh described by asset data, when it is one. */
        FOrvMeshRef FindMeshByAsset(const FOrvAssetData& Asset) const;

        /** The registered mesh, or null for a ref this store did not hand out. */
        const FOrvMemoryMeshDesc* FindMesh(FOrvMeshRef Mesh) const;

        /** Every mesh in registration order. */
        std::vector<FOrvMemoryMeshDesc> GetMeshes() const;

        /** Every non-mesh asset in registration order. */
        std::vector<FOrvAssetData> GetNonMeshAssets() const;

    private:
        bool Register(const FOrvAssetData& Asset);

        std::vector<FOrvAssetData> Registry;
        std::deque<FOrvMemoryMeshDesc>
            Meshes; ///< mesh ref N is Meshes[N - 1]; a deque keeps FindMesh pointers valid
        std::unordered_map<std::string, std::size_t> RegistryByPackage;        ///< lower-case package name
        std::unordered_map<std::string, FOrvMeshRef> MeshByPackage;            ///< lower-case package name
        std::unordered_map<std::string, FOrvMemoryMetaData> MetaDataByPackage; ///< lower-case package name
    };
} // namespace OrvWebBridge

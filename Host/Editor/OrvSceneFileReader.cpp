// Reads the host's JSON scene files (Docs/SceneFormat.md) into the in-memory editor.
#include "Core/Common/OrvStrings.h"
#include "Core/Json/OrvJson.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvObjectNames.h"
#include "Host/Editor/OrvSceneFile.h"
#include "Host/Editor/OrvSceneFileSchema.h"
#include "Host/Editor/OrvSceneJsonReader.h"
#include "Host/Runtime/OrvInputFile.h"

#include "Core/Json/OrvRapidJson.h"

#include <unordered_map>

namespace OrvWebBridge
{
    namespace
    {
        /** One registered asset as actors may reference it. */
        struct FOrvSceneAssetEntry
        {
            FOrvMeshRef Mesh; ///< null for a non-mesh asset
            std::string ClassPath;
            std::string Place; ///< where the file lists it
        };

        class FOrvSceneReader : private FOrvSceneJsonReader
        {
        public:
            FOrvSceneReader(const std::string& InSourceName, FOrvMemoryEditor& InEditor)
                : FOrvSceneJsonReader(InSourceName), SourceName(InSourceName), Editor(InEditor)
            {
            }

            FOrvSceneFileResult Read(const std::string& Text)
            {
                rapidjson::Document Document;
                // Strict UTF-8: the scene is our own format, so a bad byte is refused with its place.
                FOrvJsonParseError ParseError;
                if (!FOrvJson::Parse(Text, Document, &ParseError, {.bValidateUtf8 = true}) ||
                    !Document.IsObject())
                {
                    return {false, SourceName + ": " + FOrvJson::DescribeParseError(Text, ParseError)};
                }
                const bool bOk = ReadRoot(Document);
                return {bOk, bOk ? std::string() : GetError()};
            }

        private:
            bool ReadRoot(const rapidjson::Value& Root)
            {
                if (!CheckObject(Root, "",
                                 {"version", "map", "editor_world", "assets", "actors", "viewport"}))
                {
                    return false;
                }
                double Version = FOrvSceneFileSchema::Version;
                if (!ReadNumber(Root, "version", "", Version))
                {
                    return false;
                }
                if (Version != FOrvSceneFileSchema::Version)
                {
                    return Fail("version",
                                "only version " + std::to_string(FOrvSceneFileSchema::Version) + " is known");
                }
                std::string MapName(FOrvSceneFileSchema::DefaultMapName);
                bool bEditorWorld = true;
                if (!ReadString(Root, "map", "", MapName) ||
                    !ReadBool(Root, "editor_world", "", bEditorWorld))
                {
                    return false;
                }
                Editor.SetMapName(MapName);
                Editor.SetEditorWorldAvailable(bEditorWorld);
                return ReadAssets(Root) && ReadActors(Root) &&
                       FOrvSceneViewportReader::Read(*this, Root, Editor);
            }

            /** "/Game/A/SM_X" or "/Game/A/SM_X.SM_X" to the package name; empty when malformed. */
            static std::string PackageOf(std::string_view Path)
            {
                std::string_view Package;
                std::string_view AssetName;
                FOrvObjectNames::SplitObjectPath(Path, Package, AssetName);
                const std::string_view ShortName = FOrvObjectNames::ShortPackageName(Package);
                const std::string_view Folder = FOrvObjectNames::PackagePath(Package);
                const bool bWellFormed =
                    Package.size() > 1 && Package.front() == '/' && !ShortName.empty() && Folder.size() > 1 &&
                    Folder.find("//") == std::string_view::npos &&
                    (AssetName.empty() ? Path.find('.') == std::string_view::npos
                                       : FOrvStrings::EqualsIgnoreCase(AssetName, ShortName));
                return bWellFormed ? std::string(Package) : std::string();
            }

            bool ReadAssets(const rapidjson::Value& Root)
            {
                const rapidjson::Value* Assets = FOrvJson::FindField(Root, "assets");
                if (!Assets)
                {
                    return true;
                }
                if (!Assets->IsArray())
                {
                    return Fail("assets", "expected an array");
                }
                for (rapidjson::SizeType Index = 0; Index < Assets->Size(); ++Index)
                {
                    if (!ReadAsset((*Assets)[Index], At("assets", Index)))
                    {
                        return false;
                    }
                }
                return true;
            }

            bool ReadAsset(const rapidjson::Value& Asset, const std::string& Place)
            {
                if (!CheckObject(Asset, Place, {"path", "class", "bounds", "tag", "metadata"}))
                {
                    return false;
                }
                std::string Path;
                std::string ClassPath(FOrvSceneFileSchema::StaticMeshClassPath);
                if (!ReadString(Asset, "path", Place, Path) || !ReadString(Asset, "class", Place, ClassPath))
                {
                    return false;
                }
                if (Path.empty())
                {
                    return Fail(Join(Place, "path"),
                                "a package name such as \"/Game/ORVESSA/Brand/SM_Chair\" is required");
                }
                const std::string Package = PackageOf(Path);
                if (Package.empty())
                {
                    return Fail(Join(Place, "path"), Quoted(Path) +
                                                         " is not a package name (\"/Game/Folder/Name\") "
                                                         "or object path (\"/Game/Folder/Name.Name\")");
                }
                const std::string Key = FOrvObjectNames::Key(Package);
                if (const auto Listed = AssetsByPackage.find(Key); Listed != AssetsByPackage.end())
                {
                    return Fail(Join(Place, "path"),
                                Quoted(Path) + " is already listed as " + Listed->second.Place);
                }
                if (ClassPath.empty())
                {
                    return Fail(Join(Place, "class"), "must not be empty");
                }
                const bool bMesh = ClassPath == FOrvSceneFileSchema::StaticMeshClassPath;
                if (!bMesh)
                {
                    if (FOrvJson::FindField(Asset, "bounds") || FOrvJson::FindField(Asset, "tag"))
                    {
                        return Fail(Place, "only static meshes have \"bounds\" and \"tag\"");
                    }
                    FOrvMemoryMetaData MetaData;
                    if (!ReadNamedTexts(Asset, "metadata", Place, MetaData))
                    {
                        return false;
                    }
                    Editor.AddAsset({Package, std::string(FOrvObjectNames::PackagePath(Package)),
                                     std::string(FOrvObjectNames::ShortPackageName(Package)), ClassPath},
                                    std::move(MetaData));
                    AssetsByPackage.emplace(Key, FOrvSceneAssetEntry{{}, ClassPath, Place});
                    return true;
                }

                if (FOrvJson::FindField(Asset, "metadata"))
                {
                    return Fail(Place, "static meshes take no \"metadata\" (their product tag is \"tag\")");
                }
                FOrvMemoryMeshDesc Mesh;
                Mesh.PackageName = Package;
                if (!ReadBounds(Asset, Place, Mesh.Bounds) || !ReadTag(Asset, Place, Mesh.Tag))
                {
                    return false;
                }
                const FOrvMeshRef Ref = Editor.AddStaticMesh(Mesh);
                if (!Ref)
                {
                    return Fail(Join(Place, "path"),
                                Quoted(Package) + " is already registered in the editor");
                }
                AssetsByPackage.emplace(Key, FOrvSceneAssetEntry{Ref, ClassPath, Place});
                return true;
            }

            bool ReadBounds(const rapidjson::Value& Asset, const std::string& Place, FOrvBox& Out)
            {
                const std::string BoundsPlace = Join(Place, "bounds");
                const rapidjson::Value* Bounds = FOrvJson::FindField(Asset, "bounds");
                if (!Bounds)
                {
                    return Fail(Place,
                                "a static mesh needs \"bounds\": {\"min\": [x, y, z], \"max\": [x, y, z]}");
                }
                if (!CheckObject(*Bounds, BoundsPlace, {"min", "max"}))
                {
                    return false;
                }
                if (!FOrvJson::FindField(*Bounds, "min") || !FOrvJson::FindField(*Bounds, "max"))
                {
                    return Fail(BoundsPlace, "both \"min\" and \"max\" are required");
                }
                if (!ReadVector(*Bounds, "min", BoundsPlace, Out.Min) ||
                    !ReadVector(*Bounds, "max", BoundsPlace, Out.Max))
                {
                    return false;
                }
                if (Out.Min.X > Out.Max.X || Out.Min.Y > Out.Max.Y || Out.Min.Z > Out.Max.Z)
                {
                    return Fail(BoundsPlace, "\"min\" must not exceed \"max\" on any axis");
                }
                return true;
            }

            bool ReadTag(const rapidjson::Value& Asset, const std::string& Place,
                         std::optional<FOrvProductTag>& Out)
            {
                const rapidjson::Value* Tag = FOrvJson::FindField(Asset, "tag");
                if (!Tag || Tag->IsNull())
                {
                    return true;
                }
                const std::string TagPlace = Join(Place, "tag");
                if (!CheckObject(*Tag, TagPlace, {"id", "valid"}))
                {
                    return false;
                }
                FOrvProductTag Result;
                Result.bIsValid = true;
                const rapidjson::Value* Id = FOrvJson::FindField(*Tag, "id");
                if (!Id || !Id->IsString())
                {
                    return Fail(Join(TagPlace, "id"), "the product id string is required");
                }
                Result.ProductID.assign(Id->GetString(), Id->GetStringLength());
                if (!ReadBool(*Tag, "valid", TagPlace, Result.bIsValid))
                {
                    return false;
                }
                Out = Result;
                return true;
            }

            bool ReadActors(const rapidjson::Value& Root)
            {
                const rapidjson::Value* Actors = FOrvJson::FindField(Root, "actors");
                if (!Actors)
                {
                    return true;
                }
                if (!Actors->IsArray())
                {
                    return Fail("actors", "expected an array");
                }
                // Names given in the file are reserved first, so that an unnamed actor listed before
                // "StaticMeshActor_3" is numbered after it rather than taking its name.
                std::unordered_map<std::string, std::size_t> GivenNames;
                FOrvNameCounters Counters;
                for (rapidjson::SizeType Index = 0; Index < Actors->Size(); ++Index)
                {
                    const std::string Place = At("actors", Index);
                    const rapidjson::Value& Actor = (*Actors)[Index];
                    if (!Actor.IsObject())
                    {
                        return Fail(Place, "expected an object");
                    }
                    std::string Name;
                    if (!ReadString(Actor, "name", Place, Name))
                    {
                        return false;
                    }
                    if (Name.empty())
                    {
                        continue;
                    }
                    const auto [It, bInserted] = GivenNames.emplace(FOrvObjectNames::Key(Name), Index);
                    if (!bInserted)
                    {
                        return Fail(Join(Place, "name"), Quoted(Name) + " is already the name of actors[" +
                                                             std::to_string(It->second) + "]");
                    }
                    Counters.NoteUsed(Name);
                }
                for (rapidjson::SizeType Index = 0; Index < Actors->Size(); ++Index)
                {
                    if (!ReadActor((*Actors)[Index], At("actors", Index), GivenNames, Counters))
                    {
                        return false;
                    }
                }
                return true;
            }

            bool ReadActor(const rapidjson::Value& Actor, const std::string& Place,
                           const std::unordered_map<std::string, std::size_t>& GivenNames,
                           FOrvNameCounters& Counters)
            {
                if (!CheckObject(
                        Actor, Place,
                        {"name", "label", "class", "location", "rotation", "components", "root_component"}))
                {
                    return false;
                }
                FOrvMemoryActorDesc Desc;
                if (!ReadString(Actor, "name", Place, Desc.Name) ||
                    !ReadString(Actor, "label", Place, Desc.Label) ||
                    !ReadString(Actor, "class", Place, Desc.ClassName) ||
                    !ReadVector(Actor, "location", Place, Desc.Transform.Location) ||
                    !ReadRotator(Actor, "rotation", Place, Desc.Transform.Rotation) ||
                    !ReadBool(Actor, "root_component", Place, Desc.bHasRootComponent))
                {
                    return false;
                }
                if (Desc.ClassName.empty())
                {
                    return Fail(Join(Place, "class"), "must not be empty");
                }
                if (!ReadComponents(Actor, Place, Desc))
                {
                    return false;
                }
                if (Desc.Name.empty())
                {
                    do
                    {
                        Desc.Name = Counters.MakeUnique(Desc.ClassName);
                    } while (GivenNames.contains(FOrvObjectNames::Key(Desc.Name)));
                }
                if (!Editor.AddActor(Desc))
                {
                    return Fail(Join(Place, "name"), Quoted(Desc.Name) + " is already used in the editor");
                }
                return true;
            }

            bool ReadComponents(const rapidjson::Value& Actor, const std::string& Place,
                                FOrvMemoryActorDesc& Desc)
            {
                const rapidjson::Value* Components = FOrvJson::FindField(Actor, "components");
                const std::string ComponentsPlace = Join(Place, "components");
                if (!Components)
                {
                    // Like the engine's class: a static mesh actor always has its (empty) component.
                    if (Desc.ClassName == FOrvSceneFileSchema::StaticMeshActorClass)
                    {
                        Desc.StaticMeshComponents = {FOrvMeshRef{}};
                    }
                    return true;
                }
                if (!Components->IsArray())
                {
                    return Fail(ComponentsPlace,
                                "expected an array of mesh paths (or null for a component without mesh)");
                }
                for (rapidjson::SizeType Index = 0; Index < Components->Size(); ++Index)
                {
                    const rapidjson::Value& Component = (*Components)[Index];
                    const std::string ComponentPlace = At(ComponentsPlace, Index);
                    if (Component.IsNull())
                    {
                        Desc.StaticMeshComponents.push_back({});
                        continue;
                    }
                    if (!Component.IsString())
                    {
                        return Fail(ComponentPlace, "expected a mesh path or null");
                    }
                    const std::string_view Path = FOrvJson::View(Component);
                    const std::string Package = PackageOf(Path);
                    const auto It = AssetsByPackage.find(FOrvObjectNames::Key(Package));
                    if (Package.empty() || It == AssetsByPackage.end())
                    {
                        return Fail(ComponentPlace, "no static mesh " + Quoted(Path) + " among the assets");
                    }
                    if (!It->second.Mesh)
                    {
                        return Fail(ComponentPlace,
                                    Quoted(Path) + " is a " + It->second.ClassPath + ", not a static mesh");
                    }
                    Desc.StaticMeshComponents.push_back(It->second.Mesh);
                }
                return true;
            }

            const std::string& SourceName;
            FOrvMemoryEditor& Editor;
            std::unordered_map<std::string, FOrvSceneAssetEntry> AssetsByPackage; ///< lower-case package name
        };
    } // namespace

    FOrvSceneFileResult FOrvSceneFile::LoadText(const std::string& Text, const std::string& SourceName,
                                                FOrvMemoryEditor& Editor)
    {
        return FOrvSceneReader(SourceName, Editor).Read(Text);
    }

    FOrvSceneFileResult FOrvSceneFile::Load(const std::string& FilePath, FOrvMemoryEditor& Editor)
    {
        std::string Text;
        std::string Error;
        if (!FOrvInputFile::Read(FilePath, Text, Error))
        {
            return {false, Error};
        }
        return LoadText(Text, FilePath, Editor);
    }
} // namespace OrvWebBridge

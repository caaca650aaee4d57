// Writes the in-memory editor's project and level as a scene file (Docs/SceneFormat.md).
#include "Core/Json/OrvJsonWriter.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvObjectNames.h"
#include "Host/Editor/OrvSceneFile.h"
#include "Host/Editor/OrvSceneFileSchema.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>
#include <unordered_map>

namespace OrvWebBridge
{
    namespace
    {
        // One asset or actor per line keeps saved scenes readable and their diffs small.
        std::string JsonString(std::string_view Text)
        {
            std::string Out;
            FOrvJsonWriter Writer(Out, EOrvJsonStyle::Condensed);
            Writer.String(Text);
            return Out;
        }

        std::string JsonNumber(double Value)
        {
            std::string Out;
            FOrvJsonWriter Writer(Out, EOrvJsonStyle::Condensed);
            Writer.Number(Value);
            return Out;
        }

        std::string JsonTriple(double A, double B, double C)
        {
            return "[" + JsonNumber(A) + ", " + JsonNumber(B) + ", " + JsonNumber(C) + "]";
        }

        std::string JsonVector(const FOrvVector& Vector)
        {
            return JsonTriple(Vector.X, Vector.Y, Vector.Z);
        }

        std::string JsonRotator(const FOrvRotator& Rotator)
        {
            return JsonTriple(Rotator.Pitch, Rotator.Yaw, Rotator.Roll);
        }

        std::string MetaDataText(const FOrvMemoryMetaData& MetaData)
        {
            std::string Text = "{";
            for (const auto& [Name, Value] : MetaData)
            {
                Text += (Text.size() > 1 ? ", " : "") + JsonString(Name) + ": " + JsonString(Value);
            }
            return Text + "}";
        }

        std::string AssetLine(const FOrvAssetData& Asset, const FOrvMemoryMeshDesc* Mesh,
                              const FOrvMemoryMetaData& MetaData)
        {
            std::string Line = "{\"path\": " + JsonString(Asset.PackageName);
            if (!Mesh)
            {
                Line += ", \"class\": " + JsonString(Asset.ClassPath);
                return Line + (MetaData.empty() ? "" : ", \"metadata\": " + MetaDataText(MetaData)) + "}";
            }
            Line += ", \"bounds\": {\"min\": " + JsonVector(Mesh->Bounds.Min) +
                    ", \"max\": " + JsonVector(Mesh->Bounds.Max) + "}";
            if (Mesh->Tag)
            {
                Line += ", \"tag\": {\"id\": " + JsonString(Mesh->Tag->ProductID) +
                        ", \"valid\": " + (Mesh->Tag->bIsValid ? "true" : "false") + "}";
            }
            return Line + "}";
        }

        std::string ActorLine(const FOrvMemoryActor& Actor, const FOrvMemoryEditor& Editor)
        {
            std::string Line =
                "{\"name\": " + JsonString(Actor.Name) + ", \"label\": " + JsonString(Actor.Label) +
                ", \"class\": " + JsonString(Actor.ClassName) +
                ", \"location\": " + JsonVector(Actor.Transform.Location) +
                ", \"rotation\": " + JsonRotator(Actor.Transform.Rotation) + ", \"components\": [";
            for (std::size_t Index = 0; Index < Actor.StaticMeshComponents.size(); ++Index)
            {
                const FOrvMemoryMeshDesc* Mesh = Editor.FindMesh(Actor.StaticMeshComponents[Index]);
                Line += Index > 0 ? ", " : "";
                Line += Mesh ? JsonString(Mesh->PackageName) : "null";
            }
            Line += "]";
            if (!Actor.bHasRootComponent)
            {
                Line += ", \"root_component\": false";
            }
            return Line + "}";
        }

        std::string ViewportText(const std::optional<FOrvMemoryViewportDesc>& Viewport)
        {
            if (!Viewport)
            {
                return "null";
            }
            return "{\n        \"projection\": " +
                   JsonString(Viewport->bPerspective ? "perspective" : "orthographic") +
                   ",\n        \"fov\": " + JsonNumber(Viewport->FieldOfView) + ",\n        \"size\": [" +
                   std::to_string(Viewport->Size.X) + ", " + std::to_string(Viewport->Size.Y) +
                   "],\n        \"perspective\": {\"location\": " +
                   JsonVector(Viewport->PerspectiveView.Location) +
                   ", \"rotation\": " + JsonRotator(Viewport->PerspectiveView.Rotation) +
                   "},\n        \"orthographic\": {\"location\": " +
                   JsonVector(Viewport->OrthographicView.Location) +
                   ", \"rotation\": " + JsonRotator(Viewport->OrthographicView.Rotation) +
                   ", \"width\": " + JsonNumber(Viewport->OrthoWidth) + "}\n    }";
        }

        template <typename TItem, typename TLineOf>
        void AppendArray(std::string& Out, std::string_view Key, const std::vector<TItem>& Items,
                         TLineOf LineOf)
        {
            Out += "    \"" + std::string(Key) + "\": [";
            for (std::size_t Index = 0; Index < Items.size(); ++Index)
            {
                Out += Index > 0 ? ",\n        " : "\n        ";
                Out += LineOf(Items[Index]);
            }
            Out += Items.empty() ? "],\n" : "\n    ],\n";
        }
    } // namespace

    std::string FOrvSceneFile::SaveText(const FOrvMemoryEditor& Editor)
    {
        const std::vector<FOrvMemoryMeshDesc> Meshes = Editor.GetMeshes();
        std::unordered_map<std::string_view, const FOrvMemoryMeshDesc*> MeshByPackage;
        for (const FOrvMemoryMeshDesc& Mesh : Meshes)
        {
            MeshByPackage.emplace(Mesh.PackageName, &Mesh);
        }
        std::string Out = "{\n    \"version\": " + std::to_string(FOrvSceneFileSchema::Version) + ",\n";
        Out += "    \"map\": " + JsonString(Editor.GetMapName()) + ",\n";
        if (!Editor.IsEditorWorldAvailable())
        {
            Out += "    \"editor_world\": false,\n";
        }
        AppendArray(Out, "assets", Editor.GetRegisteredAssets(),
                    [&MeshByPackage, &Editor](const FOrvAssetData& Asset)
                    {
                        const auto It = MeshByPackage.find(Asset.PackageName);
                        return AssetLine(Asset, It != MeshByPackage.end() ? It->second : nullptr,
                                         Editor.GetMetaData(Asset.PackageName));
                    });
        AppendArray(Out, "actors", Editor.GetLevelActors(),
                    [&Editor](const FOrvMemoryActor* Actor) { return ActorLine(*Actor, Editor); });
        Out += "    \"viewport\": " + ViewportText(Editor.GetViewport()) + "\n}\n";
        return Out;
    }

    FOrvSceneFileResult FOrvSceneFile::Save(const FOrvMemoryEditor& Editor, const std::string& FilePath)
    {
        // Write next to the target and rename over it: a reader never sees half a file, and a failed
        // write leaves the previous file as it was.
        const std::string Text = SaveText(Editor);
        const std::string TempPath = FilePath + ".tmp-" + std::to_string(::getpid());
        std::FILE* File = std::fopen(TempPath.c_str(), "wb");
        if (!File)
        {
            return {false, FilePath + ": cannot write: " + std::strerror(errno)};
        }
        const bool bWritten = std::fwrite(Text.data(), 1, Text.size(), File) == Text.size() &&
                              std::fflush(File) == 0 && ::fsync(::fileno(File)) == 0;
        const int WriteErrno = errno;
        const bool bClosed = std::fclose(File) == 0;
        if (!bWritten || !bClosed)
        {
            std::remove(TempPath.c_str());
            return {false, FilePath + ": cannot write: " + std::strerror(bWritten ? errno : WriteErrno)};
        }
        if (std::rename(TempPath.c_str(), FilePath.c_str()) != 0)
        {
            const int RenameErrno = errno;
            std::remove(TempPath.c_str());
            return {false, FilePath + ": cannot replace: " + std::strerror(RenameErrno)};
        }
        return {true, {}};
    }
} // namespace OrvWebBridge

// Reads the "viewport" member of a scene file (Docs/SceneFormat.md).
#include "Core/Json/OrvJson.h"
#include "Host/Editor/OrvMemoryEditor.h"
#include "Host/Editor/OrvSceneFileSchema.h"
#include "Host/Editor/OrvSceneJsonReader.h"

namespace OrvWebBridge
{
    namespace
    {
        bool ReadSize(FOrvSceneJsonReader& Json, const rapidjson::Value& Viewport, const std::string& Place,
                      FOrvIntPoint& Out)
        {
            const rapidjson::Value* Size = FOrvJson::FindField(Viewport, "size");
            if (!Size)
            {
                return true;
            }
            const auto IsPixels = [](const rapidjson::Value& Value) {
                return Value.IsInt() && Value.GetInt() >= 0 &&
                       Value.GetInt() <= FOrvSceneFileSchema::MaxViewportSide;
            };
            if (!Size->IsArray() || Size->Size() != 2 || !IsPixels((*Size)[0]) || !IsPixels((*Size)[1]))
            {
                return Json.Fail(FOrvSceneJsonReader::Join(Place, "size"),
                                 "expected [width, height] in whole pixels from 0 to " +
                                     std::to_string(FOrvSceneFileSchema::MaxViewportSide));
            }
            Out = FOrvIntPoint{(*Size)[0].GetInt(), (*Size)[1].GetInt()};
            return true;
        }

        bool ReadView(FOrvSceneJsonReader& Json, const rapidjson::Value& Viewport, std::string_view Key,
                      FOrvTransform& Out, double* OutWidth)
        {
            const rapidjson::Value* View = FOrvJson::FindField(Viewport, Key);
            if (!View)
            {
                return true;
            }
            const std::string Place = FOrvSceneJsonReader::Join("viewport", Key);
            const bool bKnownKeys = OutWidth
                                        ? Json.CheckObject(*View, Place, {"location", "rotation", "width"})
                                        : Json.CheckObject(*View, Place, {"location", "rotation"});
            if (!bKnownKeys || !Json.ReadVector(*View, "location", Place, Out.Location) ||
                !Json.ReadRotator(*View, "rotation", Place, Out.Rotation))
            {
                return false;
            }
            if (OutWidth)
            {
                if (!Json.ReadNumber(*View, "width", Place, *OutWidth))
                {
                    return false;
                }
                if (!(*OutWidth > 0.0))
                {
                    return Json.Fail(FOrvSceneJsonReader::Join(Place, "width"),
                                     "expected a width above 0 (centimetres)");
                }
            }
            return true;
        }
    } // namespace

    bool FOrvSceneViewportReader::Read(FOrvSceneJsonReader& Json, const rapidjson::Value& Root,
                                       FOrvMemoryEditor& Editor)
    {
        const rapidjson::Value* Field = FOrvJson::FindField(Root, "viewport");
        if (!Field)
        {
            Editor.SetViewport(FOrvMemoryViewportDesc{});
            return true;
        }
        if (Field->IsNull())
        {
            Editor.SetViewport(std::nullopt);
            return true;
        }
        const std::string Place = "viewport";
        if (!Json.CheckObject(*Field, Place, {"projection", "fov", "size", "perspective", "orthographic"}))
        {
            return false;
        }
        FOrvMemoryViewportDesc Viewport;
        std::string Projection = "perspective";
        if (!Json.ReadString(*Field, "projection", Place, Projection) ||
            !Json.ReadNumber(*Field, "fov", Place, Viewport.FieldOfView) ||
            !ReadSize(Json, *Field, Place, Viewport.Size) ||
            !ReadView(Json, *Field, "perspective", Viewport.PerspectiveView, nullptr) ||
            !ReadView(Json, *Field, "orthographic", Viewport.OrthographicView, &Viewport.OrthoWidth))
        {
            return false;
        }
        if (Projection != "perspective" && Projection != "orthographic")
        {
            return Json.Fail(FOrvSceneJsonReader::Join(Place, "projection"),
                             "expected \"perspective\" or \"orthographic\"");
        }
        Viewport.bPerspective = Projection == "perspective";
        if (!(Viewport.FieldOfView > 0.0 && Viewport.FieldOfView < 180.0))
        {
            return Json.Fail(FOrvSceneJsonReader::Join(Place, "fov"),
                             "expected degrees between 0 and 180 (exclusive)");
        }
        Editor.SetViewport(Viewport);
        return true;
    }
} // namespace OrvWebBridge

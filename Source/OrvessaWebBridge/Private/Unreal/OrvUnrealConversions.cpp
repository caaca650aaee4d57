#include "Unreal/OrvUnrealConversions.h"

#include "AssetRegistry/AssetData.h"
#include "Containers/StringConv.h"
#include "Input/Events.h"

#include <cstring>

namespace OrvWebBridge
{
    static_assert(sizeof(FColor) == sizeof(FOrvColor),
                  "FColor and FOrvColor must share their B, G, R, A layout");

    FString FOrvUnrealConversions::ToFString(std::string_view Utf8)
    {
        if (Utf8.empty())
        {
            return FString();
        }
        // By length, never by terminator: request bodies and string_views are not NUL-terminated.
        const FUTF8ToTCHAR Converted(Utf8.data(), static_cast<int32>(Utf8.size()));
        return FString::ConstructFromPtrSize(Converted.Get(), Converted.Length());
    }

    std::string FOrvUnrealConversions::ToUtf8(const FString& Text)
    {
        if (Text.IsEmpty())
        {
            return std::string();
        }
        const FTCHARToUTF8 Converted(*Text, Text.Len());
        return std::string(reinterpret_cast<const char*>(Converted.Get()),
                           static_cast<size_t>(Converted.Length()));
    }

    FVector FOrvUnrealConversions::ToFVector(const FOrvVector& Vector)
    {
        return FVector(Vector.X, Vector.Y, Vector.Z);
    }

    FOrvVector FOrvUnrealConversions::ToOrvVector(const FVector& Vector)
    {
        return FOrvVector{Vector.X, Vector.Y, Vector.Z};
    }

    FRotator FOrvUnrealConversions::ToFRotator(const FOrvRotator& Rotator)
    {
        return FRotator(Rotator.Pitch, Rotator.Yaw, Rotator.Roll);
    }

    FOrvRotator FOrvUnrealConversions::ToOrvRotator(const FRotator& Rotator)
    {
        return FOrvRotator{Rotator.Pitch, Rotator.Yaw, Rotator.Roll};
    }

    FOrvBox FOrvUnrealConversions::ToOrvBox(const FBox& Box)
    {
        if (!Box.IsValid)
        {
            return FOrvBox();
        }
        return FOrvBox{ToOrvVector(Box.Min), ToOrvVector(Box.Max)};
    }

    FBox FOrvUnrealConversions::ToFBox(const FOrvBox& Box)
    {
        return FBox(ToFVector(Box.Min), ToFVector(Box.Max));
    }

    void FOrvUnrealConversions::ToOrvColors(const TArray<FColor>& Pixels, std::vector<FOrvColor>& Out)
    {
        Out.resize(static_cast<size_t>(Pixels.Num()));
        if (Pixels.Num() > 0)
        {
            std::memcpy(static_cast<void*>(Out.data()), Pixels.GetData(),
                        static_cast<size_t>(Pixels.Num()) * sizeof(FColor));
        }
    }

    FOrvAssetData FOrvUnrealConversions::ToOrvAssetData(const FAssetData& Asset)
    {
        return FOrvAssetData{ToUtf8(Asset.PackageName.ToString()), ToUtf8(Asset.PackagePath.ToString()),
                             ToUtf8(Asset.AssetName.ToString()), ToUtf8(Asset.AssetClassPath.ToString())};
    }

    FOrvKeyEvent FOrvUnrealConversions::ToOrvKeyEvent(const FKeyEvent& Event)
    {
        FOrvKeyEvent Converted;
        Converted.KeyName = ToUtf8(Event.GetKey().GetFName().ToString());
        Converted.KeyCode = Event.GetKeyCode();
        Converted.Character = Event.GetCharacter();
        Converted.bAltDown = Event.IsLeftAltDown() || Event.IsRightAltDown();
        Converted.bControlDown = Event.IsControlDown();
        Converted.bShiftDown = Event.IsShiftDown();
        return Converted;
    }
} // namespace OrvWebBridge

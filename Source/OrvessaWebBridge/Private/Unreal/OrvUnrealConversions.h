#pragma once

#include "CoreMinimal.h"

#include "Core/Common/OrvTypes.h"
#include "Core/SmartPanel/OrvInputKeyPredicate.h"

#include <string>
#include <string_view>
#include <vector>

struct FKeyEvent;
struct FAssetData;

namespace OrvWebBridge
{
    /**
     * @brief The one seam between engine and core values: FString <-> UTF-8 std::string, and the engine's
     * vector, rotator, box and colour types <-> the core's. Every adapter converts here and nowhere else.
     */
    struct FOrvUnrealConversions
    {
        /** UTF-8 bytes to FString, by length: the bytes need no terminator and may hold NUL. */
        static FString ToFString(std::string_view Utf8);

        /** FString to UTF-8 bytes, by length. */
        static std::string ToUtf8(const FString& Text);

        /** UTF-8 bytes to a text shown as it is (names from the level or the catalogue, not localised). */
        static FText ToFText(std::string_view Utf8) { return FText::FromString(ToFString(Utf8)); }

        static FVector ToFVector(const FOrvVector& Vector);
        static FOrvVector ToOrvVector(const FVector& Vector);

        static FRotator ToFRotator(const FOrvRotator& Rotator);
        static FOrvRotator ToOrvRotator(const FRotator& Rotator);

        /** An invalid (never grown) engine box becomes the zero box. */
        static FOrvBox ToOrvBox(const FBox& Box);
        static FBox ToFBox(const FOrvBox& Box);

        /** Pixels copied as they lie in memory: both types are B, G, R, A bytes. */
        static void ToOrvColors(const TArray<FColor>& Pixels, std::vector<FOrvColor>& Out);

        /** A registry entry's names, its class as the full class path ("/Script/Engine.StaticMesh"). */
        static FOrvAssetData ToOrvAssetData(const FAssetData& Asset);

        /** A key press as the Alt+R key test reads it: key name, codes, and Alt on either side. */
        static FOrvKeyEvent ToOrvKeyEvent(const FKeyEvent& Event);
    };
} // namespace OrvWebBridge

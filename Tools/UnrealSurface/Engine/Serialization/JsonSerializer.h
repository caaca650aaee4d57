#pragma once

// Engine: Runtime/Json/Public/Serialization/JsonSerializer.h (module Json). Deserialize answers false for a
// root that is not an object (an array or a scalar) and leaves the object invalid. [unconf: 5.6 adds
// overloads over views and other string types; the ones declared are those of the team's notes sheet.]
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Json/FJsonSerializer

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonWriter.h"

class FJsonSerializer
{
public:
    template <class CharType>
    static bool Deserialize(const TSharedRef<TJsonReader<CharType>>& Reader,
                            TSharedPtr<FJsonObject>& OutObject);

    template <class CharType, class PrintPolicy>
    static bool Serialize(const TSharedRef<FJsonObject>& Object,
                          const TSharedRef<TJsonWriter<CharType, PrintPolicy>>& Writer,
                          bool bCloseWriter = true);
};

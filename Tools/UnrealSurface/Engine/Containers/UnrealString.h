#pragma once

// Engine: Runtime/Core/Public/Containers/UnrealString.h (module Core).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Core/FString

#include "HAL/Platform.h"

#include <type_traits>

class FString
{
public:
    FString();
    FString(const TCHAR* Str);
    FString(const FString& Other);
    FString(FString&& Other);
    FString& operator=(const FString& Other);
    FString& operator=(FString&& Other);
    ~FString();

    /** 5.4+: the string of exactly Size characters at Ptr, which need not be terminated. It replaces the
     *  deprecated FString(int32 Len, const CharT* Str) constructor. */
    template <typename CharType>
    requires(std::is_same_v<CharType, TCHAR> || sizeof(CharType) == 1) [[nodiscard]] static FString
        ConstructFromPtrSize(const CharType* Ptr, int32 Size);

    /** The characters, terminated; never null. */
    const TCHAR* operator*() const;
    int32 Len() const;
    bool IsEmpty() const;

    bool operator==(const FString& Other) const; // ignores case, as the engine's does

    /** Joins two path parts with one "/" between them. */
    friend FString operator/(const FString& Lhs, const FString& Rhs);
    friend uint32 GetTypeHash(const FString& Text);
};

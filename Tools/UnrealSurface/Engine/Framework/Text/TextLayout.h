#pragma once

// Engine: Runtime/SlateCore/Public/Framework/Text/TextLayout.h (module SlateCore).
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/ETextJustify__Type

namespace ETextJustify
{
    enum Type : int
    {
        Left,
        Center,
        Right,
    };
} // namespace ETextJustify

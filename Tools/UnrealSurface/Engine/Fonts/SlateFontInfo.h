#pragma once

// Engine: Runtime/SlateCore/Public/Fonts/SlateFontInfo.h (module SlateCore): a font family, typeface and
// size. Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FSlateFontInfo

struct FSlateFontInfo
{
    FSlateFontInfo();
};

/** Outline settings; only the default is used here. */
struct FFontOutlineSettings
{
    FFontOutlineSettings();
};

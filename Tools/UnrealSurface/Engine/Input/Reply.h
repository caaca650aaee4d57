#pragma once

// Engine: Runtime/SlateCore/Public/Input/Reply.h (module SlateCore). What an input handler answers.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/SlateCore/FReply

class FReply
{
public:
    static FReply Handled();
    static FReply Unhandled();
};

#pragma once

// Engine: Runtime/Slate/Public/Widgets/Views/ITableRow.h (module Slate): what list and tree views make
// their rows as.
// Docs (by URL scheme):
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/Slate/ITableRow

class ITableRow
{
public:
    virtual ~ITableRow();
};

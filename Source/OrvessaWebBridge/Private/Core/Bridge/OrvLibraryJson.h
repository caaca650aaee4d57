#pragma once

#include "Core/Ports/IOrvCatalogAccount.h"

#include <string>

namespace OrvWebBridge
{
    /** @brief The library as the page reads it from GetLibraryInfo: one condensed JSON object. */
    struct FOrvLibraryJson
    {
        /** {"libraryId","files":[{"productid","filename","name","assetType"}],"installedProducts":[...]} */
        static std::string Write(const FOrvLibraryRecord& Library);
    };
} // namespace OrvWebBridge

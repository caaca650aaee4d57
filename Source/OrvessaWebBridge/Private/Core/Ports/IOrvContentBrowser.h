#pragma once

#include "Core/Common/OrvTypes.h"

#include <vector>

namespace OrvWebBridge
{
    /** @brief The primary Content Browser (IContentBrowserSingleton). Game thread. */
    class IOrvContentBrowser
    {
    public:
        virtual ~IOrvContentBrowser() = default;

        /** The assets selected in the primary Content Browser, in selection order (GetSelectedAssets). */
        virtual std::vector<FOrvAssetData> GetSelectedAssets() const = 0;
    };
} // namespace OrvWebBridge

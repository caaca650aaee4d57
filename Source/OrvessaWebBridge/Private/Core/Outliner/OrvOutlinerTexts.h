#pragma once

#include "Core/Common/OrvLocText.h"

#include <cstdint>
#include <string>

namespace OrvWebBridge
{
    /** @brief Texts of the outliner panel, namespace "OrvOutlinerPanel". */
    struct FOrvOutlinerPanelTexts
    {
        static constexpr const char* Namespace = "OrvOutlinerPanel";

        static constexpr FOrvLocText Scanning{"Scanning", "Scanning..."};
        static constexpr FOrvLocText ProductCount{"ProductCount",
                                                  "{0} {0}|plural(one=product,other=products) in scene"};
        static constexpr FOrvLocText NoProducts{"NoProducts", "No products in scene"};
        static constexpr FOrvLocText RefreshTooltip{"RefreshTooltip", "Refresh scene scan"};
        static constexpr FOrvLocText ExportCSVTooltip{"ExportCSVTooltip", "Export product schedule as CSV"};
        static constexpr FOrvLocText LoginRequired{"LoginRequired", "Login Required"};
        static constexpr FOrvLocText LoginMessage{
            "LoginMessage", "Please log in via the Orv Catalog panel\nto view scene products."};

        static constexpr FOrvLocText MacroCategoryCount{"MacroCategoryCount", "x{0}"};
        static constexpr FOrvLocText ShowMacroCategoryTooltip{"ShowMacroCategoryTooltip",
                                                              "Show all actors in this category"};
        static constexpr FOrvLocText HideMacroCategoryTooltip{"HideMacroCategoryTooltip",
                                                              "Hide all actors in this category"};
        static constexpr FOrvLocText SelectMacroCategoryTooltip{"SelectMacroCategoryTooltip",
                                                                "Select all actors in this category"};

        static constexpr FOrvLocText CategoryCount{"CategoryCount", "x{0}"};
        static constexpr FOrvLocText ShowCategoryTooltip{"ShowCategoryTooltip",
                                                         "Show all actors in this category"};
        static constexpr FOrvLocText HideCategoryTooltip{"HideCategoryTooltip",
                                                         "Hide all actors in this category"};
        static constexpr FOrvLocText SelectCategoryTooltip{"SelectCategoryTooltip",
                                                           "Select all actors in this category"};

        static constexpr FOrvLocText ActorCount{"ActorCount", "x{0}"};
        static constexpr FOrvLocText NavigateMeshTooltip{"NavigateMeshTooltip",
                                                         "Navigate to mesh in Content Browser"};
        static constexpr FOrvLocText SelectActorsTooltip{"SelectActorsTooltip",
                                                         "Select all actors of this product in viewport"};
        static constexpr FOrvLocText OpenWebPanelTooltip{"OpenWebPanelTooltip",
                                                         "Open product details in web panel"};

        /** A count as FText::AsNumber writes it in English: digits grouped by thousands ("1,234"). */
        static std::string FormatNumber(std::int64_t Value);

        /** The ProductCount text for Count > 0 ("1 product in scene", "10 products in scene"), else
         * NoProducts.
         */
        static std::string FormatStatus(std::int32_t Count);

        /** A row's count, "x{0}". */
        static std::string FormatRowCount(std::int32_t Count);
    };

    /** @brief Texts of the export dialog, namespace "OrvOutlinerExportDialog". */
    struct FOrvOutlinerExportDialogTexts
    {
        static constexpr const char* Namespace = "OrvOutlinerExportDialog";

        static constexpr FOrvLocText WindowTitle{"WindowTitle", "Export Product Schedule"};
        static constexpr FOrvLocText DialogTitle{"DialogTitle", "Export Product Schedule"};
        static constexpr FOrvLocText ProjectNameLabel{"ProjectNameLabel", "Project Name:"};
        static constexpr FOrvLocText RevisionLabel{"RevisionLabel", "Revision:"};
        static constexpr FOrvLocText CancelButton{"CancelButton", "Cancel"};
        static constexpr FOrvLocText ExportButton{"ExportButton", "Export CSV"};
    };
} // namespace OrvWebBridge

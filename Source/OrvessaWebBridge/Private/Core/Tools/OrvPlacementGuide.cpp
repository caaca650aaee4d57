#include "Core/Tools/OrvPlacementGuide.h"

namespace OrvWebBridge
{
    namespace
    {
        // Kept byte for byte: AI clients read and quote these rules, so wording, spacing and the em dashes
        // are part of the tool's behaviour. One literal per line keeps the "\n" line ends whatever line
        // ends the source file is checked out with; the em dashes are spelled as UTF-8 escapes so that no
        // compiler's source character set can change them.
        // clang-format off
    constexpr std::string_view OrvPlacementGuideText =
        "# ORVESSA Spatial Placement Guide (Unreal Engine)\n"
        "\n"
        "Apply when placing/arranging products in 3D space, or when relative position/orientation is implied ('around', 'facing', 'next to', 'in front of'). Do NOT apply for catalog browsing, info-only requests, or when the user gives explicit coordinates.\n"
        "\n"
        "## Before you place anything (calibration)\n"
        "1. Read this guide and restate the convention you'll use (forward = +Y).\n"
        "2. For any multi-object layout, FIRST produce an explicit reasoning block \xE2\x80\x94 each item's position, yaw, the gaps/relationships you chose and WHY \xE2\x80\x94 and wait for the user's confirmation before spawning. Correct on paper, not after spawning.\n"
        "\n"
        "## Coordinate convention (fixed for ALL ORVESSA assets)\n"
        "Forward = +Y, Up = +Z, Right = +X. The front face points toward +Y at yaw 0 (yaw 90 -> -X, yaw 180 -> -Y, yaw -90 -> +X). Verified empirically (chair at yaw atan2(-dx,dy) points exactly at its target).\n"
        "\n"
        "## Spatial reference: the bounding box, never the pivot\n"
        "Call ue_get_asset_bounds for each product. It returns the LOCAL box (pivot at origin), so bbox_min/bbox_max give size (incl. depth) AND how the asset sits:\n"
        "- floor-center: bbox_min.Z~0, centered in XY -> rests on the floor (chairs, tables).\n"
        "- floor-back:   bbox_min.Z~0, one Y face at 0 -> rests on the floor against a wall (some sideboards).\n"
        "- wall:         Z centered on the pivot, one Y face at 0 -> mounts flush to a wall (mirrors).\n"
        "- ceiling:      bbox_max.Z~0, box hangs below the pivot -> mounts to a ceiling (pendant lamps).\n"
        "mounting_hint is a convenience; bbox_min/bbox_max are authoritative.\n"
        "For ORIENTATION and relative positioning between products, always reference the target's bounding-box FACES, never its pivot. Build the target's world-space box from its world transform (ue_list_scene) + local bounds.\n"
        "\n"
        "## Orientation \xE2\x80\x94 perpendicular to the nearest BB face\n"
        "A product faces the NEAREST face of the target's bounding box, perpendicular to it:\n"
        "- Products arrayed ALONG a flat face/edge (e.g. chairs on the long side of a table): yaw = the inward normal of that edge. They face the edge SQUARELY \xE2\x80\x94 do NOT look-at the center point.\n"
        "- Products on SHORT ends, or around a CIRCULAR/radial surface: look-at the geometric center: dx=cx-ox, dy=cy-oy, yaw = atan2(-dx, dy) * 180/pi (this is the look-at for +Y-forward assets).\n"
        "- Living seating: secondary armchairs orient PARALLEL to the main sofa, facing the sofa's front BB face \xE2\x80\x94 NOT toward the coffee-table center.\n"
        "Apply as rotation [pitch=0, yaw, roll=0]. Always compute from real world coordinates; never hardcode cardinals.\n"
        "\n"
        "## Distance & gaps (measure FACE-to-FACE between bounding boxes, not pivot-to-pivot)\n"
        "Two gap classes \xE2\x80\x94 pick by function:\n"
        "- proximity / reach (objects used together): ~45cm. e.g. sofa<->coffee table ~45cm; coffee table<->side armchair ~30cm; floor lamp ~10cm from the sofa's side BB.\n"
        "- circulation / walkway (passage around or behind a grouping): ~85cm.\n"
        "Dining chairs tucked under a table use OVERLAP instead of a gap: resting (default) = chair BB overlaps the table BB by ~half the chair depth; pulled out (active) = 0 overlap.\n"
        "\n"
        "## Distribution around a surface\n"
        "Distribute N units proportionally to the target's perimeter: n_long = round(N * long / perimeter), n_short = round(N * short / perimeter); reconcile rounding so the counts sum to N; space units evenly per side. Do not hardcode per-side counts.\n"
        "\n"
        "## Corrections\n"
        "Use ue_move_actor for ANY fix to an already-placed actor \xE2\x80\x94 location and rotation are independent optional params, so you can pass only rotation without touching location. Never delete + respawn to reposition.\n"
        "\n"
        "## Workflow\n"
        "1. ue_list_available_assets (confirm assets are present locally)\n"
        "2. ue_get_asset_bounds for each product\n"
        "3. produce the reasoning block (positions, yaw, gaps, rationale) and get confirmation\n"
        "4. ue_spawn_product for each item\n"
        "5. ue_capture_view to verify the result\n"
        "6. ue_move_actor to adjust if needed\n";
        // clang-format on
    } // namespace

    std::string_view FOrvPlacementGuide::Text()
    {
        return OrvPlacementGuideText;
    }
} // namespace OrvWebBridge

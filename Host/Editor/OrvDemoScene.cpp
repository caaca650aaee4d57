// The demo room: a living and dining space with products of every mounting kind.
//
// Floor-standing products are boxes resting on Z = 0 (table, chairs, sofa...), the sideboard and the
// bookcase have their back face on the pivot so they stand against a wall, mirror, wall lamps and shelf
// are centred on the pivot in Z with their back on it, and the pendants hang below theirs. Dining chairs,
// armchairs, pendants, wall lamps and cushions are placed more than once; the stool, the table lamp and
// a second "SM_Chair" (another brand's, in another folder) are imported but not placed. The side table
// carries a tag that is no longer valid, and the display plinth holds an untagged mesh before a tagged
// vase. Walls, plinth and light are architecture, not catalogue products. Four material instances are the
// catalogue's finishes (an "Orv_FinishID" in their package metadata); the sand wool was never tagged.
#include "Host/Editor/OrvDemoScene.h"

namespace OrvWebBridge
{
    std::string_view FOrvDemoScene::SceneJson()
    {
        static constexpr std::string_view Text = R"json({
    "version": 1,
    "map": "DemoRoom",
    "assets": [
        {"path": "/Game/ORVESSA/FormaNova/Arco/Meshes/SM_DiningTable", "bounds": {"min": [-110, -50, 0], "max": [110, 50, 75]}, "tag": {"id": "FNV-TB-2040", "valid": true}},
        {"path": "/Game/ORVESSA/FormaNova/Arco/Meshes/SM_Chair", "bounds": {"min": [-23, -26, 0], "max": [23, 26, 82]}, "tag": {"id": "FNV-CH-1102", "valid": true}},
        {"path": "/Game/ORVESSA/FormaNova/Arco/Textures/T_Oak_Natural_D", "class": "/Script/Engine.Texture2D"},
        {"path": "/Game/ORVESSA/FormaNova/Arco/Materials/MI_Oak_Natural", "class": "/Script/Engine.MaterialInstanceConstant", "metadata": {"Orv_FinishID": "FIN-OAK-NAT"}},
        {"path": "/Game/ORVESSA/FormaNova/Arco/Meshes/SM_Stool", "bounds": {"min": [-18, -18, 0], "max": [18, 18, 65]}, "tag": {"id": "FNV-ST-1150", "valid": true}},
        {"path": "/Game/ORVESSA/FormaNova/Archivio/Meshes/SM_SideTable_Old", "bounds": {"min": [-25, -25, 0], "max": [25, 25, 55]}, "tag": {"id": "FNV-ST-0999", "valid": false}},
        {"path": "/Game/ORVESSA/AtelierBrera/Onda/Meshes/SM_Sofa", "bounds": {"min": [-110, -48, 0], "max": [110, 48, 78]}, "tag": {"id": "ATB-SF-3300", "valid": true}},
        {"path": "/Game/ORVESSA/AtelierBrera/Nido/Meshes/SM_Armchair", "bounds": {"min": [-42, -40, 0], "max": [42, 40, 80]}, "tag": {"id": "ATB-AC-3120", "valid": true}},
        {"path": "/Game/ORVESSA/PietraViva/Sasso/Meshes/SM_CoffeeTable", "bounds": {"min": [-60, -35, 0], "max": [60, 35, 38]}, "tag": {"id": "PVV-CT-0510", "valid": true}},
        {"path": "/Game/ORVESSA/LineaStudio/Riga/Meshes/SM_Sideboard", "bounds": {"min": [-90, 0, 0], "max": [90, 48, 76]}, "tag": {"id": "LNS-SB-0450", "valid": true}},
        {"path": "/Game/ORVESSA/LineaStudio/Riga/Meshes/SM_Bookcase", "bounds": {"min": [-60, 0, 0], "max": [60, 38, 200]}, "tag": {"id": "LNS-BK-0460", "valid": true}},
        {"path": "/Game/ORVESSA/LineaStudio/Filo/Meshes/SM_WallShelf", "bounds": {"min": [-50, 0, -12], "max": [50, 22, 12]}, "tag": {"id": "LNS-SH-0470", "valid": true}},
        {"path": "/Game/ORVESSA/LineaStudio/Riga/Meshes/SM_Chair", "bounds": {"min": [-22, -24, 0], "max": [22, 24, 80]}, "tag": {"id": "LNS-CH-0480", "valid": true}},
        {"path": "/Game/ORVESSA/CasaVetro/Luna/Meshes/SM_Mirror", "bounds": {"min": [-40, 0, -50], "max": [40, 3, 50]}, "tag": {"id": "CVT-MR-0021", "valid": true}},
        {"path": "/Game/ORVESSA/CasaVetro/Anfora/Meshes/SM_Vase", "bounds": {"min": [-12, -12, 0], "max": [12, 12, 40]}, "tag": {"id": "CVT-VS-0033", "valid": true}},
        {"path": "/Game/ORVESSA/OfficinaLuce/Stelo/Meshes/SM_FloorLamp", "bounds": {"min": [-18, -18, 0], "max": [18, 18, 165]}, "tag": {"id": "OFL-FL-0707", "valid": true}},
        {"path": "/Game/ORVESSA/OfficinaLuce/Goccia/Meshes/SM_WallLamp", "bounds": {"min": [-12, 0, -15], "max": [12, 20, 15]}, "tag": {"id": "OFL-WL-0715", "valid": true}},
        {"path": "/Game/ORVESSA/OfficinaLuce/Nuvola/Meshes/SM_Pendant", "bounds": {"min": [-25, -25, -60], "max": [25, 25, 0]}, "tag": {"id": "OFL-PL-0730", "valid": true}},
        {"path": "/Game/ORVESSA/OfficinaLuce/Stelo/Meshes/SM_TableLamp", "bounds": {"min": [-10, -10, 0], "max": [10, 10, 45]}, "tag": {"id": "OFL-TL-0702", "valid": true}},
        {"path": "/Game/ORVESSA/TessileMori/Dune/Meshes/SM_Rug", "bounds": {"min": [-120, -85, 0], "max": [120, 85, 1]}, "tag": {"id": "TSM-RG-0088", "valid": true}},
        {"path": "/Game/ORVESSA/TessileMori/Righe/Meshes/SM_Cushion", "bounds": {"min": [-25, -8, 0], "max": [25, 8, 45]}, "tag": {"id": "TSM-CU-0091", "valid": true}},
        {"path": "/Game/ORVESSA/TessileMori/Dune/Materials/MI_Wool_Sand", "class": "/Script/Engine.MaterialInstanceConstant"},
        {"path": "/Game/ORVESSA/PietraViva/Sasso/Materials/MI_Marble_Carrara", "class": "/Script/Engine.MaterialInstanceConstant", "metadata": {"Orv_FinishID": "FIN-MAR-CAR"}},
        {"path": "/Game/ORVESSA/AtelierBrera/Onda/Materials/MI_Boucle_Ivory", "class": "/Script/Engine.MaterialInstanceConstant", "metadata": {"Orv_FinishID": "FIN-BOU-IVO"}},
        {"path": "/Game/ORVESSA/LineaStudio/Riga/Materials/MI_Ash_Black", "class": "/Script/Engine.MaterialInstanceConstant", "metadata": {"Orv_FinishID": "FIN-ASH-BLK"}},
        {"path": "/Game/Architecture/Walls/SM_Wall_700", "bounds": {"min": [-350, -20, 0], "max": [350, 0, 300]}},
        {"path": "/Game/Architecture/Walls/SM_Wall_500", "bounds": {"min": [-250, -20, 0], "max": [250, 0, 300]}},
        {"path": "/Game/Architecture/Props/SM_Plinth", "bounds": {"min": [-20, -20, 0], "max": [20, 20, 90]}}
    ],
    "actors": [
        {"label": "Back Wall", "location": [0, -250, 0], "rotation": [0, 0, 0], "components": ["/Game/Architecture/Walls/SM_Wall_700"]},
        {"label": "Left Wall", "location": [-350, 0, 0], "rotation": [0, -90, 0], "components": ["/Game/Architecture/Walls/SM_Wall_500"]},
        {"label": "Dining Table", "location": [150, -40, 0], "rotation": [0, 0, 0], "components": ["/Game/ORVESSA/FormaNova/Arco/Meshes/SM_DiningTable"]},
        {"label": "Dining Chair", "location": [95, -120, 0], "rotation": [0, 0, 0], "components": ["/Game/ORVESSA/FormaNova/Arco/Meshes/SM_Chair"]},
        {"label": "Dining Chair", "location": [205, -120, 0], "rotation": [0, 0, 0], "components": ["/Game/ORVESSA/FormaNova/Arco/Meshes/SM_Chair"]},
        {"label": "Dining Chair", "location": [95, 40, 0], "rotation": [0, 180, 0], "components": ["/Game/ORVESSA/FormaNova/Arco/Meshes/SM_Chair"]},
        {"label": "Dining Chair", "location": [205, 40, 0], "rotation": [0, 180, 0], "components": ["/Game/ORVESSA/FormaNova/Arco/Meshes/SM_Chair"]},
        {"label": "Pendant", "location": [95, -40, 300], "rotation": [0, 0, 0], "components": ["/Game/ORVESSA/OfficinaLuce/Nuvola/Meshes/SM_Pendant"]},
        {"label": "Pendant", "location": [205, -40, 300], "rotation": [0, 0, 0], "components": ["/Game/ORVESSA/OfficinaLuce/Nuvola/Meshes/SM_Pendant"]},
        {"label": "Sideboard", "location": [150, -250, 0], "rotation": [0, 0, 0], "components": ["/Game/ORVESSA/LineaStudio/Riga/Meshes/SM_Sideboard"]},
        {"label": "Vase", "location": [200, -226, 76], "rotation": [0, 0, 0], "components": ["/Game/ORVESSA/CasaVetro/Anfora/Meshes/SM_Vase"]},
        {"label": "Mirror", "location": [150, -250, 150], "rotation": [0, 0, 0], "components": ["/Game/ORVESSA/CasaVetro/Luna/Meshes/SM_Mirror"]},
        {"label": "Wall Lamp", "location": [45, -250, 150], "rotation": [0, 0, 0], "components": ["/Game/ORVESSA/OfficinaLuce/Goccia/Meshes/SM_WallLamp"]},
        {"label": "Wall Lamp", "location": [255, -250, 150], "rotation": [0, 0, 0], "components": ["/Game/ORVESSA/OfficinaLuce/Goccia/Meshes/SM_WallLamp"]},
        {"label": "Rug", "location": [-170, -20, 0], "rotation": [0, 90, 0], "components": ["/Game/ORVESSA/TessileMori/Dune/Meshes/SM_Rug"]},
        {"label": "Sofa", "location": [-270, -20, 0], "rotation": [0, -90, 0], "components": ["/Game/ORVESSA/AtelierBrera/Onda/Meshes/SM_Sofa"]},
        {"label": "Cushion", "location": [-290, -70, 42], "rotation": [0, -90, 0], "components": ["/Game/ORVESSA/TessileMori/Righe/Meshes/SM_Cushion"]},
        {"label": "Cushion", "location": [-290, 30, 42], "rotation": [0, -90, 0], "components": ["/Game/ORVESSA/TessileMori/Righe/Meshes/SM_Cushion"]},
        {"label": "Coffee Table", "location": [-150, -20, 0], "rotation": [0, -90, 0], "components": ["/Game/ORVESSA/PietraViva/Sasso/Meshes/SM_CoffeeTable"]},
        {"label": "Armchair", "location": [-40, 100, 0], "rotation": [0, 137.5, 0], "components": ["/Game/ORVESSA/AtelierBrera/Nido/Meshes/SM_Armchair"]},
        {"label": "Armchair", "location": [-40, -140, 0], "rotation": [0, 42.5, 0], "components": ["/Game/ORVESSA/AtelierBrera/Nido/Meshes/SM_Armchair"]},
        {"label": "Floor Lamp", "location": [-300, 190, 0], "rotation": [0, 0, 0], "components": ["/Game/ORVESSA/OfficinaLuce/Stelo/Meshes/SM_FloorLamp"]},
        {"label": "Side Table", "location": [-285, 125, 0], "rotation": [0, 0, 0], "components": ["/Game/ORVESSA/FormaNova/Archivio/Meshes/SM_SideTable_Old"]},
        {"label": "Bookcase", "location": [-200, -250, 0], "rotation": [0, 0, 0], "components": ["/Game/ORVESSA/LineaStudio/Riga/Meshes/SM_Bookcase"]},
        {"label": "Wall Shelf", "location": [-350, -20, 160], "rotation": [0, -90, 0], "components": ["/Game/ORVESSA/LineaStudio/Filo/Meshes/SM_WallShelf"]},
        {"label": "Vase on Plinth", "class": "Actor", "location": [-310, -210, 0], "rotation": [0, 0, 0], "components": ["/Game/Architecture/Props/SM_Plinth", "/Game/ORVESSA/CasaVetro/Anfora/Meshes/SM_Vase"]},
        {"name": "DirectionalLight_0", "label": "Sun", "class": "DirectionalLight", "location": [0, 0, 800], "rotation": [-50, 30, 0], "components": []},
        {"name": "WorldSettings", "label": "WorldSettings", "class": "WorldSettings", "location": [0, 0, 0], "rotation": [0, 0, 0], "components": [], "root_component": false}
    ],
    "viewport": {
        "projection": "perspective",
        "fov": 90,
        "size": [1280, 720],
        "perspective": {"location": [330, 430, 230], "rotation": [-14, -129, 0]},
        "orthographic": {"location": [0, 0, 1200], "rotation": [-90, 0, 0], "width": 900}
    }
}
)json";
        return Text;
    }
} // namespace OrvWebBridge

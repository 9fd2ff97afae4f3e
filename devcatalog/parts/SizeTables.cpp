#include "devcatalog/parts/SizeTables.h"

namespace devcatalog
{

const std::vector<SizeTable>& sizeTables()
{
    static const std::vector<SizeTable> tables = {
        {"hex-bolt",
         "hex-bolt",
         {{"Thread diameter", "mm"}, {"Pitch", "mm"}, {"Width across flats", "mm"}, {"Head height", "mm"}},
         {"Length", "mm"},
         "{size} x {variant}",
         {
             {"M5", "5 0.8 8 3.5", "16 20 25 30"},
             {"M6", "6 1 10 4", "16 20 30 40"},
             {"M8", "8 1.25 13 5.3", "20 30 40 50"},
             {"M10", "10 1.5 16 6.4", "25 35 50 60"},
             {"M12", "12 1.75 18 7.5", "30 45 60 70"},
             {"M16", "16 2 24 10", "40 60 80 90"},
             {"M20", "20 2.5 30 12.5", "50 80 100"},
             {"M24", "24 3 36 15", "60 90 120"},
         }},
        {"hex-nut",
         "hex-nut",
         {{"Thread diameter", "mm"}, {"Pitch", "mm"}, {"Width across flats", "mm"}},
         {"Height", "mm"},
         "{size}, height {variant}",
         {
             {"M5", "5 0.8 8", "2.7 4.7"},
             {"M6", "6 1 10", "3.2 5.2"},
             {"M8", "8 1.25 13", "4 6.8"},
             {"M10", "10 1.5 16", "5 8.4"},
             {"M12", "12 1.75 18", "6 10.8"},
             {"M16", "16 2 24", "8 14.8"},
             {"M20", "20 2.5 30", "10 18"},
             {"M24", "24 3 36", "12 21.5"},
         }},
        {"washer",
         "washer",
         {{"Inner diameter", "mm"}, {"Outer diameter", "mm"}},
         {"Thickness", "mm"},
         "{size}, thickness {variant}",
         {
             {"M5", "5.3 10", "0.5 1"},
             {"M6", "6.4 12", "0.8 1.6"},
             {"M8", "8.4 16", "0.8 1.6"},
             {"M10", "10.5 20", "1 2"},
             {"M12", "13 24", "1.6 2.5"},
             {"M16", "17 30", "2 3"},
             {"M20", "21 37", "2 3"},
             {"M24", "25 44", "2 4"},
         }},
    };
    return tables;
}

} // namespace devcatalog

#include "dev/catalog/parts/PartRanges.h"

namespace devcatalog
{

namespace
{

// The suppliers are invented. Their names, and those of their parts, have what a catalog of the world's
// makers has: letters of many scripts, ampersands, quotation marks and angle brackets.
constexpr std::string_view brandmoor = "Brandmoor & Vogelsang";
constexpr std::string_view fjellbekk = "Fjellbekk Fasteners AS";
constexpr std::string_view blueOtter = "The \"Blue Otter\" Pneumatics Co.";
constexpr std::string_view quillfen = "Quillfen <Motion> Ltd.";
constexpr std::string_view otarrant = "O'Tarrant & Daughters' Gearworks";
constexpr std::string_view muessig = "Müßigbrunn Wälzlager GmbH & Co. KG";
constexpr std::string_view zwoelfhaus = "Federnwerk Zwölfhaus";
constexpr std::string_view aotani = "碧谷精密工業株式会社";
constexpr std::string_view klen = "ООО «Клён-Подшипник»";
constexpr std::string_view tramonto = "Tramonto Verde Profilati S.r.l.";
constexpr std::string_view etoile = "Étoile d'Ardoise S.A.";
constexpr std::string_view laka = "Łąkowy Dwór Obudowy Sp. z o.o.";
constexpr std::string_view kestrelby = "Kestrelby Sensorer A/S";
constexpr std::string_view hanbit = "한빛여울 센서";
constexpr std::string_view copperwren = "Copperwren Enclosures Inc.";
constexpr std::string_view akcakavak = "Akçakavak Işıklı Rulman A.Ş.";
constexpr std::string_view elaionas = "Ελαιώνας Ελατήρια Α.Ε.";

constexpr std::string_view longBoltText =
    "Hexagon head bolt {size} for steel and machine construction, rolled thread, partly threaded shank with "
    "a "
    "tolerance of h13, head with a turned chamfer and a washer face. Zinc plated by a process free of "
    "chromium(VI) "
    "with a layer of 8 µm, salt spray test 96 h to first white rust and 168 h to first red rust. The bolts "
    "of a "
    "packing unit come from one melt; its number is on the label, and an inspection certificate can be had "
    "on "
    "request. Friction coefficient with the supplied lubrication 0.09 to 0.14, service temperature -50 to "
    "+150 °C. "
    "Not to be used for lifting gear & where loads change direction more than 2 x 10^6 times.";

constexpr std::string_view longBearingText =
    "Однорядный радиальный шарикоподшипник {size}. Предназначен для восприятия радиальных и умеренных осевых "
    "нагрузок, пригоден для высоких частот вращения и не требует обслуживания в течение всего срока службы. "
    "Исполнения: открытое, с двумя металлическими шайбами (2Z) и с двумя контактными уплотнениями (2RS), "
    "заполнение пластичной смазкой на литиевой основе, рабочая температура от -30 до +110 °C. Класс точности "
    "нормальный, радиальный зазор нормальной группы; повышенный зазор — по запросу.";

constexpr std::string_view longCylinderText = "Double-acting cylinder with bore {size} mm, adjustable "
                                              "cushioning at both ends and a magnet in the piston for "
                                              "position sensing. Covers of die-cast aluminium, barrel of "
                                              "anodised aluminium tube held by four tie rods, rod of "
                                              "hardened & chrome plated steel with an external thread, seals "
                                              "of polyurethane for dry or lubricated air of 1 to "
                                              "10 bar. Operating temperature -20 to +80 °C. <Mounting parts, "
                                              "rod eyes and sensors are ordered separately.>";

std::vector<Parameter> material(const char* name)
{
    return {{"Material", name, ""}};
}

std::vector<Parameter> bolt(const char* name, const char* thread)
{
    return {{"Material", name, ""}, {"Thread", thread, ""}};
}

std::vector<PartRange> fasteners()
{
    return {
        {"hex-bolt",
         brandmoor,
         "Hex bolt {size}",
         longBoltText,
         "",
         "",
         bolt("Steel 8.8, zinc plated", "partial"),
         {}},
        {"hex-bolt", fjellbekk, "Hex screw {size} A2", "", "", "", bolt("Stainless steel A2-70", "full"), {}},
        {"hex-bolt",
         aotani,
         "六角ボルト {size}",
         "六角ボルト {size}、鋼製、三価クロメート処理。Hex bolt, strength 10.9.",
         "M6",
         "M20",
         bolt("Steel 10.9", "partial"),
         {}},
        {"inch hex-bolt",
         fjellbekk,
         "Hex cap screw {size} UNC",
         "Inch hex cap screw, grade 5, thread {size} UNC & class 2A.",
         "",
         "",
         bolt("Steel grade 5", "partial"),
         {"eDrawingView_TRIMETRIC"}},
        {"socket-screw",
         brandmoor,
         "Socket head screw {size}",
         "Socket head cap screw {size} with hex socket, strength class 12.9.",
         "",
         "",
         bolt("Steel 12.9, black", "partial"),
         {}},
        {"socket-screw",
         etoile,
         "Vis à tête cylindrique {size}",
         "Vis à tête cylindrique à six pans creux {size}, acier inoxydable; hex socket.",
         "M3",
         "M12",
         bolt("Stainless steel A4-80", "full"),
         {}},
        {"hex-nut",
         brandmoor,
         "Hex nut {size}",
         "Hexagon nut {size}, thin or standard height, strength class 8.",
         "",
         "",
         material("Steel 8, zinc plated"),
         {}},
        {"hex-nut", fjellbekk, "Hex nut {size} A4", "", "M6", "M24", material("Stainless steel A4"), {}},
        {"hex-nut",
         klen,
         "Гайка шестигранная {size}",
         "Шестигранная гайка {size}, сталь, класс прочности 8.",
         "M8",
         "M24",
         material("Steel 8"),
         {"eDrawingView_DIMETRIC", "eDrawingView_TRIMETRIC"}},
        {"washer",
         brandmoor,
         "Washer {size}",
         "Flat washer for {size} hex bolts & screws.",
         "",
         "",
         material("Steel 200 HV"),
         {}},
        {"washer",
         etoile,
         "Rondelle plate {size}",
         "Rondelle plate pour vis {size}, étamée.",
         "M5",
         "M16",
         material("Brass, tinned"),
         {"eDrawingView_4VIEW"}},
        {"dowel-pin",
         brandmoor,
         "Dowel pin {size}",
         "Hardened dowel pin, ground to {size}, one end crowned.",
         "",
         "",
         material("Steel, hardened"),
         {}},
        {"dowel-pin", aotani, "平行ピン {size}", "", "", "", material("Stainless steel"), {}},
        {"star-knob",
         quillfen,
         "Star knob {size}",
         "Star knob with threaded stud, fibre reinforced plastic <black>.",
         "",
         "",
         material("Plastic, steel stud"),
         {}},
        {"star-knob",
         zwoelfhaus,
         "Sterngriff {size} mit Gewindebolzen",
         "Sterngriff aus Duroplast, Deckel in Signalorange, Größe {size}.",
         "",
         "",
         material("Duroplast"),
         {}},
    };
}

std::vector<PartRange> driveParts()
{
    return {
        {"ball-bearing",
         muessig,
         "Rillenkugellager {size}",
         "Einreihiges Rillenkugellager {size}, geräuscharm, für hohe Drehzahlen. Deep groove ball bearing.",
         "",
         "",
         material("Chrome steel"),
         {}},
        {"ball-bearing",
         klen,
         "Шарикоподшипник {size}",
         longBearingText,
         "",
         "",
         material("Chrome steel"),
         {}},
        {"ball-bearing",
         akcakavak,
         "Sabit bilyalı rulman {size}",
         "Tek sıralı rulman {size}; ince yağ ile, ışıklı kutuda.",
         "6000",
         "6208",
         material("Chrome steel"),
         {"eDrawingView_BOTTOM"}},
        {"ball-bearing", aotani, "深溝玉軸受 {size}", "", "608", "6206", material("Chrome steel"), {}},
        {"pillow-block",
         muessig,
         "Stehlager UCP-{size}",
         "Gehäuselager mit Spannlager für Wellen von {size} mm, Fuß mit zwei Schraubenlöchern. Pillow block.",
         "",
         "",
         material("Cast iron"),
         {}},
        {"pillow-block",
         akcakavak,
         "Dik yatak {size}",
         "Yataklı rulman, mil çapı {size} mm, döküm gövde.",
         "",
         "",
         material("Cast iron"),
         {}},
        {"spur-gear",
         otarrant,
         "Spur gear {size}",
         "Spur gear, pressure angle 20°, with hub & keyway. Module and teeth: {size}.",
         "",
         "",
         material("Steel C45"),
         {}},
        {"spur-gear", quillfen, "Gear wheel <{size}>", "", "M1 Z20", "M2 Z40", material("Brass"), {}},
        {"spur-gear",
         aotani,
         "平歯車 {size}",
         "並歯、圧力角20°、ボス付き平歯車。",
         "M1.5 Z18",
         "",
         material("Steel S45C"),
         {}},
        {"v-belt-pulley",
         otarrant,
         "V-belt pulley {size}",
         "Grooved pulley for narrow V-belts, profile and size {size}.",
         "",
         "",
         material("Cast iron"),
         {}},
        {"v-belt-pulley",
         tramonto,
         "Puleggia trapezoidale {size}",
         "Puleggia per cinghie trapezoidali strette, ghisa, equilibrata staticamente.",
         "SPZ 80-2",
         "",
         material("Cast iron"),
         {"eDrawingView_ISOMETRIC"}},
        {"compression-spring",
         zwoelfhaus,
         "Druckfeder {size}",
         "Zylindrische Druckfeder aus Federstahldraht, {size} mm, Enden angelegt. Compression spring.",
         "",
         "",
         material("Spring steel wire"),
         {}},
        {"compression-spring",
         elaionas,
         "Ελατήριο συμπίεσης {size}",
         "Ελατήριο συμπίεσης από ανοξείδωτο χάλυβα, {size} mm.",
         "",
         "",
         material("Stainless spring steel"),
         {}},
        {"compression-spring",
         aotani,
         "圧縮コイルばね {size}",
         "",
         "1 x 10",
         "3.2 x 32",
         material("Piano wire"),
         {}},
    };
}

std::vector<PartRange> structuralParts()
{
    return {
        {"angle-bracket",
         etoile,
         "Équerre {size}",
         "Équerre d'assemblage pliée {size}, acier galvanisé, angle 90°.",
         "",
         "",
         material("Steel, galvanised"),
         {}},
        {"angle-bracket",
         tramonto,
         "Angle bracket {size}",
         "Mounting angle for aluminium profiles with hex bolts, legs {size} mm.",
         "",
         "",
         material("Steel, zinc plated"),
         {}},
        {"angle-bracket",
         fjellbekk,
         "Vinkelbeslag {size} Æ",
         "",
         "30x30",
         "80x80",
         material("Stainless steel A2"),
         {}},
        {"aluminium-profile",
         tramonto,
         "Profilato {size}",
         "Profilato in alluminio anodizzato con cave a T, {size} mm.",
         "",
         "",
         material("EN AW-6063"),
         {}},
        {"aluminium-profile",
         brandmoor,
         "Slot profile {size} \"light\"",
         "Aluminium profile with T-slots on all sides, anodised, cut to length. Accepts hex nuts & hammer "
         "nuts.",
         "",
         "",
         material("EN AW-6060"),
         {"eDrawingView_DIMETRIC"}},
        {"pipe-flange",
         etoile,
         "Bride à collerette {size}",
         "Bride à souder en bout {size}, PN 16, joint plat.",
         "",
         "",
         material("Steel P245GH"),
         {}},
        {"pipe-flange",
         klen,
         "Фланец приварной {size}",
         "Фланец стальной приварной встык {size}, PN 16 (< 120 °C).",
         "",
         "",
         material("Steel 20"),
         {"eDrawingView_MULTI", "eDrawingView_4VIEW"}},
        {"bridge-handle",
         tramonto,
         "Maniglia a ponte {size}",
         "Maniglia tubolare, interasse {size} mm, fissaggio dal retro.",
         "",
         "",
         material("Aluminium, anodised"),
         {}},
        {"bridge-handle", quillfen, "Pull handle {size}", "", "", "", material("Aluminium"), {}},
        {"enclosure",
         laka,
         "Obudowa {size}",
         "Obudowa ścienna z tworzywa, {size} mm, IP65, śruby z główką hex.",
         "",
         "",
         material("ABS"),
         {}},
        {"enclosure",
         copperwren,
         "Junction box {size}",
         "Wall enclosure \"Wren\" {size}, IP66, with two cable entries & captive lid screws.",
         "",
         "",
         material("Polycarbonate"),
         {}},
    };
}

std::vector<PartRange> actuators()
{
    return {
        {"pneumatic-cylinder",
         blueOtter,
         "Pneumatic cylinder {size}",
         longCylinderText,
         "",
         "",
         material("Aluminium"),
         {}},
        {"pneumatic-cylinder", quillfen, "Tie rod cylinder {size}", "", "", "80", material("Aluminium"), {}},
        {"pneumatic-cylinder",
         hanbit,
         "공압 실린더 {size}",
         "복동 실린더, 보어 {size} mm, 자석 내장.",
         "32",
         "63",
         material("Aluminium"),
         {"eDrawingView_TRIMETRIC"}},
        {"proximity-sensor",
         kestrelby,
         "Inductive sensor {size}",
         "Inductive proximity sensor {size}, PNP & NPN, two hex nuts supplied, cable 2 m.",
         "",
         "",
         {{"Material", "Brass, nickel plated", ""}, {"Output", "PNP, normally open", ""}},
         {}},
        {"proximity-sensor",
         hanbit,
         "근접 센서 {size}",
         "유도형 근접 센서 {size}, 케이블 2 m, IP67.",
         "",
         "",
         {{"Material", "Brass", ""}, {"Output", "NPN", ""}},
         {}},
        {"proximity-sensor",
         aotani,
         "近接センサ {size}",
         "誘導形近接センサ {size}、シールドタイプ、ケーブル引出し。",
         "",
         "",
         {{"Material", "Brass", ""}, {"Output", "PNP", ""}},
         {}},
        {"stepper-motor",
         quillfen,
         "Stepper motor {size}",
         "Hybrid stepper motor, 1.8° per step, frame size {size} mm.",
         "",
         "",
         {{"Phases", "2", ""}, {"Step angle", "1.8", "°"}},
         {}},
        {"stepper-motor",
         kestrelby,
         "Trinmotor {size}",
         "",
         "",
         "",
         {{"Phases", "2", ""}},
         {"eDrawingView_BACK"}},
    };
}

} // namespace

const std::vector<PartRange>& partRanges()
{
    static const std::vector<PartRange> all = [] {
        std::vector<PartRange> result;
        for (const auto& group : {fasteners(), driveParts(), structuralParts(), actuators()})
            result.insert(result.end(), group.begin(), group.end());
        return result;
    }();
    return all;
}

} // namespace devcatalog

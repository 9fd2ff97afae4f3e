#include "dev/catalog/parts/PartRanges.h"

namespace devcatalog
{

namespace
{

// The suppliers are invented. Their names, and those of their parts, have what a catalog of the world's
// makers has: letters of many scripts, ampersands, quotation marks and angle brackets.
constexpr std::string_view Brandmoor = "Brandmoor & Vogelsang";
constexpr std::string_view Fjellbekk = "Fjellbekk Fasteners AS";
constexpr std::string_view BlueOtter = "The \"Blue Otter\" Pneumatics Co.";
constexpr std::string_view Quillfen = "Quillfen <Motion> Ltd.";
constexpr std::string_view OTarrant = "O'Tarrant & Daughters' Gearworks";
constexpr std::string_view Muessig = "Müßigbrunn Wälzlager GmbH & Co. KG";
constexpr std::string_view Zwoelfhaus = "Federnwerk Zwölfhaus";
constexpr std::string_view Aotani = "碧谷精密工業株式会社";
constexpr std::string_view Klen = "ООО «Клён-Подшипник»";
constexpr std::string_view Tramonto = "Tramonto Verde Profilati S.r.l.";
constexpr std::string_view Etoile = "Étoile d'Ardoise S.A.";
constexpr std::string_view Laka = "Łąkowy Dwór Obudowy Sp. z o.o.";
constexpr std::string_view Kestrelby = "Kestrelby Sensorer A/S";
constexpr std::string_view Hanbit = "한빛여울 센서";
constexpr std::string_view Copperwren = "Copperwren Enclosures Inc.";
constexpr std::string_view Akcakavak = "Akçakavak Işıklı Rulman A.Ş.";
constexpr std::string_view Elaionas = "Ελαιώνας Ελατήρια Α.Ε.";

constexpr std::string_view LongBoltText =
    "Hexagon head bolt {size} for steel and machine construction, rolled thread, partly threaded shank with "
    "a tolerance of h13, head with a turned chamfer and a washer face. Zinc plated by a process free of "
    "chromium(VI) with a layer of 8 µm, salt spray test 96 h to first white rust and 168 h to first red "
    "rust. The bolts of a packing unit come from one melt; its number is on the label, and an inspection "
    "certificate can be had on request. Friction coefficient with the supplied lubrication 0.09 to 0.14, "
    "service temperature -50 to +150 °C. Not to be used for lifting gear & where loads change direction "
    "more than 2 x 10^6 times.";

constexpr std::string_view LongBearingText =
    "Однорядный радиальный шарикоподшипник {size}. Предназначен для восприятия радиальных и умеренных "
    "осевых нагрузок, пригоден для высоких частот вращения и не требует обслуживания в течение всего срока "
    "службы. Исполнения: открытое, с двумя металлическими шайбами (2Z) и с двумя контактными уплотнениями "
    "(2RS), заполнение пластичной смазкой на литиевой основе, рабочая температура от -30 до +110 °C. Класс "
    "точности нормальный, радиальный зазор нормальной группы; повышенный зазор — по запросу.";

constexpr std::string_view LongCylinderText =
    "Double-acting cylinder with bore {size} mm, adjustable cushioning at both ends and a magnet in the "
    "piston for position sensing. Covers of die-cast aluminium, barrel of anodised aluminium tube held by "
    "four tie rods, rod of hardened & chrome plated steel with an external thread, seals of polyurethane "
    "for dry or lubricated air of 1 to 10 bar. Operating temperature -20 to +80 °C. <Mounting parts, rod "
    "eyes and sensors are ordered separately.>";

constexpr Properties material(std::string_view name)
{
    return {{{"Material", name, ""}}};
}

constexpr Properties bolt(std::string_view name, std::string_view thread)
{
    return {{{"Material", name, ""}, {"Thread", thread, ""}}};
}

// clang-format off
constexpr PartRange Ranges[] = {
    // table, supplier, name, first and last size (all unless given), properties, views that are not drawn,
    // description
    {"hex-bolt", Brandmoor, "Hex bolt {size}", {}, bolt("Steel 8.8, zinc plated", "partial"), {},
     LongBoltText},
    {"hex-bolt", Fjellbekk, "Hex screw {size} A2", {}, bolt("Stainless steel A2-70", "full"), {},
     ""},
    {"hex-bolt", Aotani, "六角ボルト {size}", {"M6", "M20"}, bolt("Steel 10.9", "partial"), {},
     "六角ボルト {size}、鋼製、三価クロメート処理。Hex bolt, strength 10.9."},
    {"inch hex-bolt", Fjellbekk, "Hex cap screw {size} UNC", {},
     bolt("Steel grade 5", "partial"), {{"eDrawingView_TRIMETRIC"}},
     "Inch hex cap screw, grade 5, thread {size} UNC & class 2A."},
    {"socket-screw", Brandmoor, "Socket head screw {size}", {}, bolt("Steel 12.9, black", "partial"), {},
     "Socket head cap screw {size} with hex socket, strength class 12.9."},
    {"socket-screw", Etoile, "Vis à tête cylindrique {size}", {"M3", "M12"},
     bolt("Stainless steel A4-80", "full"), {},
     "Vis à tête cylindrique à six pans creux {size}, acier inoxydable; hex socket."},
    {"hex-nut", Brandmoor, "Hex nut {size}", {}, material("Steel 8, zinc plated"), {},
     "Hexagon nut {size}, thin or standard height, strength class 8."},
    {"hex-nut", Fjellbekk, "Hex nut {size} A4", {"M6", "M24"}, material("Stainless steel A4"), {},
     ""},
    {"hex-nut", Klen, "Гайка шестигранная {size}", {"M8", "M24"},
     material("Steel 8"), {{"eDrawingView_DIMETRIC", "eDrawingView_TRIMETRIC"}},
     "Шестигранная гайка {size}, сталь, класс прочности 8."},
    {"washer", Brandmoor, "Washer {size}", {}, material("Steel 200 HV"), {},
     "Flat washer for {size} hex bolts & screws."},
    {"washer", Etoile, "Rondelle plate {size}", {"M5", "M16"},
     material("Brass, tinned"), {{"eDrawingView_4VIEW"}},
     "Rondelle plate pour vis {size}, étamée."},
    {"dowel-pin", Brandmoor, "Dowel pin {size}", {}, material("Steel, hardened"), {},
     "Hardened dowel pin, ground to {size}, one end crowned."},
    {"dowel-pin", Aotani, "平行ピン {size}", {}, material("Stainless steel"), {},
     ""},
    {"star-knob", Quillfen, "Star knob {size}", {}, material("Plastic, steel stud"), {},
     "Star knob with threaded stud, fibre reinforced plastic <black>."},
    {"star-knob", Zwoelfhaus, "Sterngriff {size} mit Gewindebolzen", {}, material("Duroplast"), {},
     "Sterngriff aus Duroplast, Deckel in Signalorange, Größe {size}."},
    {"ball-bearing", Muessig, "Rillenkugellager {size}", {}, material("Chrome steel"), {},
     "Einreihiges Rillenkugellager {size}, geräuscharm, für hohe Drehzahlen. Deep groove ball bearing."},
    {"ball-bearing", Klen, "Шарикоподшипник {size}", {}, material("Chrome steel"), {},
     LongBearingText},
    {"ball-bearing", Akcakavak, "Sabit bilyalı rulman {size}", {"6000", "6208"},
     material("Chrome steel"), {{"eDrawingView_BOTTOM"}},
     "Tek sıralı rulman {size}; ince yağ ile, ışıklı kutuda."},
    {"ball-bearing", Aotani, "深溝玉軸受 {size}", {"608", "6206"}, material("Chrome steel"), {},
     ""},
    {"pillow-block", Muessig, "Stehlager UCP-{size}", {}, material("Cast iron"), {},
     "Gehäuselager mit Spannlager für Wellen von {size} mm, Fuß mit zwei Schraubenlöchern. Pillow block."},
    {"pillow-block", Akcakavak, "Dik yatak {size}", {}, material("Cast iron"), {},
     "Yataklı rulman, mil çapı {size} mm, döküm gövde."},
    {"spur-gear", OTarrant, "Spur gear {size}", {}, material("Steel C45"), {},
     "Spur gear, pressure angle 20°, with hub & keyway. Module and teeth: {size}."},
    {"spur-gear", Quillfen, "Gear wheel <{size}>", {"M1 Z20", "M2 Z40"}, material("Brass"), {},
     ""},
    {"spur-gear", Aotani, "平歯車 {size}", {"M1.5 Z18", ""}, material("Steel S45C"), {},
     "並歯、圧力角20°、ボス付き平歯車。"},
    {"v-belt-pulley", OTarrant, "V-belt pulley {size}", {}, material("Cast iron"), {},
     "Grooved pulley for narrow V-belts, profile and size {size}."},
    {"v-belt-pulley", Tramonto, "Puleggia trapezoidale {size}", {"SPZ 80-2", ""},
     material("Cast iron"), {{"eDrawingView_ISOMETRIC"}},
     "Puleggia per cinghie trapezoidali strette, ghisa, equilibrata staticamente."},
    {"compression-spring", Zwoelfhaus, "Druckfeder {size}", {}, material("Spring steel wire"), {},
     "Zylindrische Druckfeder aus Federstahldraht, {size} mm, Enden angelegt. Compression spring."},
    {"compression-spring", Elaionas, "Ελατήριο συμπίεσης {size}", {}, material("Stainless spring steel"), {},
     "Ελατήριο συμπίεσης από ανοξείδωτο χάλυβα, {size} mm."},
    {"compression-spring", Aotani, "圧縮コイルばね {size}", {"1 x 10", "3.2 x 32"},
     material("Piano wire"), {},
     ""},
    {"angle-bracket", Etoile, "Équerre {size}", {}, material("Steel, galvanised"), {},
     "Équerre d'assemblage pliée {size}, acier galvanisé, angle 90°."},
    {"angle-bracket", Tramonto, "Angle bracket {size}", {}, material("Steel, zinc plated"), {},
     "Mounting angle for aluminium profiles with hex bolts, legs {size} mm."},
    {"angle-bracket", Fjellbekk, "Vinkelbeslag {size} Æ", {"30x30", "80x80"},
     material("Stainless steel A2"), {},
     ""},
    {"aluminium-profile", Tramonto, "Profilato {size}", {}, material("EN AW-6063"), {},
     "Profilato in alluminio anodizzato con cave a T, {size} mm."},
    {"aluminium-profile", Brandmoor, "Slot profile {size} \"light\"", {},
     material("EN AW-6060"), {{"eDrawingView_DIMETRIC"}},
     "Aluminium profile with T-slots on all sides, anodised, cut to length. Accepts hex nuts & hammer nuts."},
    {"pipe-flange", Etoile, "Bride à collerette {size}", {}, material("Steel P245GH"), {},
     "Bride à souder en bout {size}, PN 16, joint plat."},
    {"pipe-flange", Klen, "Фланец приварной {size}", {},
     material("Steel 20"), {{"eDrawingView_MULTI", "eDrawingView_4VIEW"}},
     "Фланец стальной приварной встык {size}, PN 16 (< 120 °C)."},
    {"bridge-handle", Tramonto, "Maniglia a ponte {size}", {}, material("Aluminium, anodised"), {},
     "Maniglia tubolare, interasse {size} mm, fissaggio dal retro."},
    {"bridge-handle", Quillfen, "Pull handle {size}", {}, material("Aluminium"), {},
     ""},
    {"enclosure", Laka, "Obudowa {size}", {}, material("ABS"), {},
     "Obudowa ścienna z tworzywa, {size} mm, IP65, śruby z główką hex."},
    {"enclosure", Copperwren, "Junction box {size}", {}, material("Polycarbonate"), {},
     "Wall enclosure \"Wren\" {size}, IP66, with two cable entries & captive lid screws."},
    {"pneumatic-cylinder", BlueOtter, "Pneumatic cylinder {size}", {}, material("Aluminium"), {},
     LongCylinderText},
    {"pneumatic-cylinder", Quillfen, "Tie rod cylinder {size}", {"", "80"}, material("Aluminium"), {},
     ""},
    {"pneumatic-cylinder", Hanbit, "공압 실린더 {size}", {"32", "63"},
     material("Aluminium"), {{"eDrawingView_TRIMETRIC"}},
     "복동 실린더, 보어 {size} mm, 자석 내장."},
    {"proximity-sensor", Kestrelby, "Inductive sensor {size}", {},
     {{{"Material", "Brass, nickel plated", ""}, {"Output", "PNP, normally open", ""}}}, {},
     "Inductive proximity sensor {size}, PNP & NPN, two hex nuts supplied, cable 2 m."},
    {"proximity-sensor", Hanbit, "근접 센서 {size}", {},
     {{{"Material", "Brass", ""}, {"Output", "NPN", ""}}}, {},
     "유도형 근접 센서 {size}, 케이블 2 m, IP67."},
    {"proximity-sensor", Aotani, "近接センサ {size}", {},
     {{{"Material", "Brass", ""}, {"Output", "PNP", ""}}}, {},
     "誘導形近接センサ {size}、シールドタイプ、ケーブル引出し。"},
    {"stepper-motor", Quillfen, "Stepper motor {size}", {},
     {{{"Phases", "2", ""}, {"Step angle", "1.8", "°"}}}, {},
     "Hybrid stepper motor, 1.8° per step, frame size {size} mm."},
    {"stepper-motor", Kestrelby, "Trinmotor {size}", {}, {{{"Phases", "2", ""}}}, {{"eDrawingView_BACK"}},
     ""},
};
// clang-format on

} // namespace

Rows<PartRange> partRanges()
{
    return Ranges;
}

} // namespace devcatalog

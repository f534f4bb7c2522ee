#include "markup/internal/compositions.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace {

/// A mark, and each letter that it may stand on before what becomes of the two.
struct Mark {
    char32_t mark;
    std::u16string_view letters;
};

// The canonical decompositions of Unicode 14 that end with one of these marks and are not excluded
// from composition.
// clang-format off
constexpr Mark marks[] = {
    {U'\u0301',  // acute
     u"AÁEÉIÍOÓUÚYÝaáeéiíoóuúyýCĆcćLĹlĺNŃnńRŔrŕSŚsśZŹzźÜǗüǘGǴgǵÅǺåǻÆǼæǽØǾøǿΑΆΕΈΗΉΙΊ"
     u"ΟΌΥΎΩΏϊΐαάεέηήιίϋΰοόυύωώϒϓГЃКЌгѓкќÇḈçḉĒḖēḗÏḮïḯKḰkḱMḾmḿÕṌõṍŌṒōṓPṔpṕŨṸũṹWẂwẃÂẤ"
     u"âấĂẮăắÊẾêếÔỐôốƠỚơớƯỨưứἀἄἁἅἈἌἉἍἐἔἑἕἘἜἙἝἠἤἡἥἨἬἩἭἰἴἱἵἸἼἹἽὀὄὁὅὈὌὉὍὐὔὑὕὙὝὠὤὡὥὨὬὩὭ"},
    {U'\u0308',  // diaeresis
     u"AÄEËIÏOÖUÜaäeëiïoöuüyÿYŸΙΪΥΫιϊυϋϒϔЕЁІЇеёіїАӒаӓӘӚәӛЖӜжӝЗӞзӟИӤиӥОӦоӧӨӪөӫЭӬэӭУӰ"
     u"уӱЧӴчӵЫӸыӹHḦhḧÕṎõṏŪṺūṻWẄwẅXẌxẍtẗ"},
    {U'\u0304',  // macron
     u"AĀaāEĒeēIĪiīOŌoōUŪuūÜǕüǖÄǞäǟȦǠȧǡÆǢæǣǪǬǫǭÖȪöȫÕȬõȭȮȰȯȱYȲyȳИӢиӣУӮуӯGḠgḡḶḸḷḹṚṜṛṝ"
     u"αᾱΑᾹιῑΙῙυῡΥῩ"},
    {U'\u0300',  // grave
     u"AÀEÈIÌOÒUÙaàeèiìoòuùÜǛüǜNǸnǹЕЀИЍеѐиѝĒḔēḕŌṐōṑWẀwẁÂẦâầĂẰăằÊỀêềÔỒôồƠỜơờƯỪưừYỲyỳ"
     u"ἀἂἁἃἈἊἉἋἐἒἑἓἘἚἙἛἠἢἡἣἨἪἩἫἰἲἱἳἸἺἹἻὀὂὁὃὈὊὉὋὐὒὑὓὙὛὠὢὡὣὨὪὩὫαὰεὲηὴιὶοὸυὺωὼΑᾺΕῈΗῊϊῒ"
     u"ΙῚϋῢΥῪΟῸΩῺ"},
    {U'\u0303',  // tilde
     u"AÃNÑOÕaãnñoõIĨiĩUŨuũVṼvṽÂẪâẫĂẴăẵEẼeẽÊỄêễÔỖôỗƠỠơỡƯỮưữYỸyỹ"},
    {U'\u0307',  // dot above
     u"CĊcċEĖeėGĠgġIİZŻzżAȦaȧOȮoȯBḂbḃDḊdḋFḞfḟHḢhḣMṀmṁNṄnṅPṖpṗRṘrṙSṠsṡŚṤśṥŠṦšṧṢṨṣṩTṪ"
     u"tṫWẆwẇXẊxẋYẎyẏſẛ"},
    {U'\u0302',  // circumflex
     u"AÂEÊIÎOÔUÛaâeêiîoôuûCĈcĉGĜgĝHĤhĥJĴjĵSŜsŝWŴwŵYŶyŷZẐzẑẠẬạậẸỆẹệỌỘọộ"},
    {U'\u0328',  // ogonek
     u"AĄaąEĘeęIĮiįUŲuųOǪoǫ"},
    {U'\u030C',  // caron
     u"CČcčDĎdďEĚeěLĽlľNŇnňRŘrřSŠsšTŤtťZŽzžAǍaǎIǏiǐOǑoǒUǓuǔÜǙüǚGǦgǧKǨkǩƷǮʒǯjǰHȞhȟ"},
    {U'\u0327',  // cedilla
     u"CÇcçGĢgģKĶkķLĻlļNŅnņRŖrŗSŞsşTŢtţEȨeȩDḐdḑHḨhḩ"},
    {U'\u030B',  // double acute
     u"OŐoőUŰuűУӲуӳ"},
    {U'\u0306',  // breve
     u"AĂaăEĔeĕGĞgğIĬiĭOŎoŏUŬuŭУЎИЙийуўЖӁжӂАӐаӑЕӖеӗȨḜȩḝẠẶạặαᾰΑᾸιῐΙῘυῠΥῨ"},
};
// clang-format on

struct Row {
    char32_t character;
    Accented parts;
};

constexpr std::size_t count_rows() {
    std::size_t count = 0;
    for (const Mark& mark : marks) count += mark.letters.size() / 2;
    return count;
}

/// The other way, in the order of the characters.
constexpr auto decompositions = [] {
    std::array<Row, count_rows()> rows{};
    std::size_t count = 0;
    for (const Mark& mark : marks) {
        for (std::size_t i = 0; i < mark.letters.size(); i += 2) {
            rows[count++] = {mark.letters[i + 1], {mark.letters[i], mark.mark}};
        }
    }
    std::sort(rows.begin(), rows.end(),
              [](const Row& a, const Row& b) { return a.character < b.character; });
    return rows;
}();

}  // namespace

char32_t composed(char32_t letter, char32_t mark) {
    const auto* const row = std::find_if(std::begin(marks), std::end(marks),
                                         [mark](const Mark& known) { return known.mark == mark; });
    if (row == std::end(marks)) return 0;
    for (std::size_t i = 0; i < row->letters.size(); i += 2) {
        if (row->letters[i] == letter) return row->letters[i + 1];
    }
    return 0;
}

std::optional<Accented> decomposed(char32_t character) {
    const auto* const row = std::lower_bound(
        decompositions.begin(), decompositions.end(), character,
        [](const Row& candidate, char32_t code) { return candidate.character < code; });
    if (row == decompositions.end() || row->character != character) return std::nullopt;
    return row->parts;
}

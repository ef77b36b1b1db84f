#include "helpers/code_page.h"

#include "helpers/ansi_text.h"
#include "helpers/utf8.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace quillon {

namespace {

constexpr unsigned char kFirstOfPage = 0x80;

struct CodePage {
    int number;
    // The characters of the bytes 0x80 to 0xFF; the replacement character where there is none.
    std::u16string_view upperHalf;
};

// As Unicode's mapping tables give them.
// clang-format off
constexpr CodePage kCodePages[] = {
    {437,
     u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒ"
     u"áíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
     u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
     u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0"},
    {850,
     u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒ"
     u"áíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
     u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀"
     u"ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0"},
    {865,
     u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø₧ƒ"
     u"áíóúñÑªº¿⌐¬½¼¡«¤░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
     u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
     u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0"},
    {1250,
     u"€\uFFFD‚\uFFFD„…†‡\uFFFD‰Š‹ŚŤŽŹ\uFFFD‘’“”•–—\uFFFD™š›śťžź"
     u"\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż°±˛ł´µ¶·¸ąş»Ľ˝ľż"
     u"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
     u"ŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙"},
    {1251,
     u"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏђ‘’“”•–—\uFFFD™љ›њќћџ"
     u"\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї°±Ііґµ¶·ё№є»јЅѕї"
     u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"
     u"абвгдежзийклмнопрстуфхцчшщъыьэюя"},
    {1253,
     u"€\uFFFD‚ƒ„…†‡\uFFFD‰\uFFFD‹\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD‘’“”•–—\uFFFD™\uFFFD›\uFFFD\uFFFD\uFFFD\uFFFD"
     u"\u00A0΅Ά£¤¥¦§¨©\uFFFD«¬\u00AD®―°±²³΄µ¶·ΈΉΊ»Ό½ΎΏ"
     u"ΐΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡ\uFFFDΣΤΥΦΧΨΩΪΫάέήί"
     u"ΰαβγδεζηθικλμνξοπρςστυφχψωϊϋόύώ\uFFFD"},
    {1254,
     u"€\uFFFD‚ƒ„…†‡ˆ‰Š‹Œ\uFFFD\uFFFD\uFFFD\uFFFD‘’“”•–—˜™š›œ\uFFFD\uFFFDŸ"
     u"\u00A0¡¢£¤¥¦§¨©ª«¬\u00AD®¯°±²³´µ¶·¸¹º»¼½¾¿"
     u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏĞÑÒÓÔÕÖ×ØÙÚÛÜİŞß"
     u"àáâãäåæçèéêëìíîïğñòóôõö÷øùúûüışÿ"},
    {1257,
     u"€\uFFFD‚\uFFFD„…†‡\uFFFD‰\uFFFD‹\uFFFD¨ˇ¸\uFFFD‘’“”•–—\uFFFD™\uFFFD›\uFFFD¯˛\uFFFD"
     u"\u00A0\uFFFD¢£¤\uFFFD¦§Ø©Ŗ«¬\u00AD®Æ°±²³´µ¶·ø¹ŗ»¼½¾æ"
     u"ĄĮĀĆÄÅĘĒČÉŹĖĢĶĪĻŠŃŅÓŌÕÖ×ŲŁŚŪÜŻŽß"
     u"ąįāćäåęēčéźėģķīļšńņóōõö÷ųłśūüżž˙"},
    {10000,
     u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü"
     u"†°¢£§•¶ß®©™´¨≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø"
     u"¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ"
     u"‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ\uF8FFÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ"},
};
// clang-format on

static_assert(std::ranges::all_of(kCodePages, [](const CodePage& page) {
    return page.upperHalf.size() == 0x100 - kFirstOfPage;
}));

} // namespace

char32_t CodePointOf(int codePage, unsigned char byte)
{
    if (byte < kFirstOfPage)
        return byte;
    if (codePage == kWindows1252) {
        const char one = static_cast<char>(byte);
        std::size_t position = 0;
        return NextCodePoint(AnsiText::FromBytes({&one, 1}), position);
    }
    const auto* const page = std::ranges::find(kCodePages, codePage, &CodePage::number);
    return page == std::end(kCodePages) ? kReplacementCharacter
                                        : page->upperHalf[byte - kFirstOfPage];
}

} // namespace quillon

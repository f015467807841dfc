// The reading and composing rules of annotation texts.
#include <array>
#include <optional>
#include <utility>

#include "c/private/Texts.h"

using namespace RankerC;

namespace {

[[noreturn]] void NotDone(const char* why) { throw Refusal{RK_NOT_DONE, why}; }

// A kind's fields in the order of the interface.
constexpr std::array NameOrder = {&NameText::Fields::type, &NameText::Fields::serial,
                                  &NameText::Fields::span, &NameText::Fields::cantilever};
constexpr std::array SectionOrder = {&SectionText::Fields::separator, &SectionText::Fields::width,
                                     &SectionText::Fields::height};
constexpr std::array StirrupOrder = {&StirrupText::Fields::grade,        &StirrupText::Fields::diameter,
                                     &StirrupText::Fields::tightSpacing, &StirrupText::Fields::tightLegs,
                                     &StirrupText::Fields::spacing,      &StirrupText::Fields::legs};
constexpr std::array PieceOrder = {&BarPiece::Columns::count,    &BarPiece::Columns::grade,
                                   &BarPiece::Columns::diameter, &BarPiece::Columns::upper,
                                   &BarPiece::Columns::lower,    &BarPiece::Columns::terminator};

template <class Fields, std::size_t Count>
void Put(const Fields& fields, const std::array<CString Fields::*, Count>& order, List& list)
{
    CStringArray texts;
    for (const auto field : order) {
        texts.Add(fields.*field);
    }
    list.Changed();
    list.m_texts = std::move(texts);
    list.m_numbers.clear();
}

template <class Fields, std::size_t Count>
Fields Take(const Context& context, const std::array<CString Fields::*, Count>& order,
            const rk_text* fields, std::size_t count)
{
    if (count != Count) {
        RefuseValue("count", static_cast<long long>(count));
    }
    Need(fields, "fields");
    Fields taken;
    for (std::size_t i = 0; i < Count; ++i) {
        taken.*order[i] = TextOf(context, fields[i].data, fields[i].length, "a field");
    }
    return taken;
}

// The text of a row; empty where the list shows none.
template <class Texts>
CString RowOf(const Texts& texts, std::optional<int> row)
{
    const bool bThere = row && *row >= 0 && static_cast<std::size_t>(*row) < texts.size();
    return bThere ? CString(texts[static_cast<std::size_t>(*row)]) : CString();
}

// Their row number is the count.
CString SplitOf(std::optional<int> row) { return row ? RowOf(BarPiece::Counts, *row - 1) : CString(); }

BarPiece::Columns ColumnsOf(const CString& piece)
{
    constexpr int NoType = -1;
    const BarPiece::Rows rows = BarPiece::ReadBack(piece, NoType);
    return {RowOf(BarPiece::Counts, rows.count),
            RowOf(BarPiece::Grades, rows.grade),
            RowOf(BarPiece::Diameters, rows.diameter),
            SplitOf(rows.upper),
            SplitOf(rows.lower),
            RowOf(BarPiece::Terminators, rows.terminator)};
}

rk_measures MeasuresOf(std::int32_t what, const CString& text)
{
    rk_measures measures{};
    switch (what) {
    case RK_NAME: BEAMNAME_HITNESS_RANKER::GetBeamXu(text, measures.serial); break;
    case RK_SECTION: {
        BEAMSIZE_HITNESS_RANKER ranker;
        ranker.GetBeamWidth(text, measures.width);
        ranker.GetBeamHeight(text, measures.height);
        break;
    }
    case RK_ELEVATION: measures.level = RealValue(text.View()); break;
    case RK_STIRRUP: {
        const StirrupText::Measures stirrup = StirrupText::Measure(text);
        measures.diameter = stirrup.diameter;
        measures.spacing = stirrup.spacing;
        measures.tight_spacing = stirrup.tightSpacing;
        measures.legs = stirrup.legs;
        break;
    }
    case RK_BARS: {
        const BarText::Term term = BarText::SplitTerm(text);
        measures.count = term.count;
        measures.diameter = term.diameter;
        break;
    }
    case RK_WALL_BARS:
        if (!AnalyseBarComment(text, measures.grade, measures.diameter, measures.tight_spacing,
                               measures.spacing, &measures.tenths)) {
            NotDone("no wall bars: grade or diameter is missing");
        }
        break;
    default: RefuseValue("what", what);
    }
    return measures;
}

bool PressKey(CString& level, std::int32_t key)
{
    switch (key) {
    case RK_KEY_POINT: return LevelText::AddPoint(level);
    case RK_KEY_MINUS: return LevelText::AddMinus(level);
    case RK_KEY_BRACKETS: return LevelText::AddBrackets(level);
    case RK_KEY_BACK: return LevelText::TakeBack(level);
    default: break;
    }
    if (key < '0' || key > '9') {
        RefuseValue("key", key);
    }
    LevelText::Add(level, CString(static_cast<char>(key)));
    return true;
}

// A rule that makes a text of a text.
template <class Rule>
rk_status Rewrite(rk_context context, const char* text, std::size_t text_length, char* buffer,
                  std::size_t size, std::size_t* length, Rule rule)
{
    return Guarded([&] {
        const auto found = Find<Context>(context);
        Give(*found, rule(TextOf(*found, text, text_length, "text")), buffer, size, length);
    });
}

// A rule that makes a number of two texts.
template <class Rule>
rk_status Judge(rk_context context, const char* a, std::size_t a_length, const char* b,
                std::size_t b_length, std::int32_t* answer, Rule rule)
{
    return Guarded([&] {
        const auto found = Find<Context>(context);
        Need(answer, "the answer");
        *answer = rule(TextOf(*found, a, a_length, "a"), TextOf(*found, b, b_length, "b"));
    });
}

}  // namespace

rk_status rk_text_read(rk_context context, int32_t what, const char* text, size_t text_length,
                       rk_list fields)
{
    return Guarded([&] {
        const auto found = Find<Context>(context);
        const auto list = Find<List>(fields);
        CString own = TextOf(*found, text, text_length, "text");
        switch (what) {
        case RK_NAME: {
            NameText::Fields name;
            if (!NameText::Decompose(own, name)) {
                NotDone("a name without L");
            }
            Put(name, NameOrder, *list);
            break;
        }
        case RK_SECTION: {
            SectionText::Fields section;
            section.separator = "x";
            if (!SectionText::Decompose(own, section)) {
                NotDone("an empty section");
            }
            Put(section, SectionOrder, *list);
            break;
        }
        case RK_STIRRUP: {
            StirrupText::Fields stirrup;
            StirrupText::Decompose(own, stirrup);
            if (stirrup == StirrupText::Fields{}) {
                NotDone("a stirrup without spacing mark or grade letter");
            }
            Put(stirrup, StirrupOrder, *list);
            break;
        }
        case RK_BAR_PIECE: Put(ColumnsOf(own), PieceOrder, *list); break;
        default: RefuseValue("what", what);
        }
    });
}

rk_status rk_text_compose(rk_context context, int32_t what, const rk_text* fields, size_t count,
                          char* buffer, size_t size, size_t* length)
{
    return Guarded([&] {
        const auto found = Find<Context>(context);
        CString text;
        switch (what) {
        case RK_NAME:
            if (!NameText::Compose(Take(*found, NameOrder, fields, count), text)) {
                NotDone("neither a span nor a cantilever");
            }
            break;
        case RK_SECTION: text = SectionText::Compose(Take(*found, SectionOrder, fields, count)); break;
        case RK_STIRRUP: {
            StirrupText::Fields stirrup = Take(*found, StirrupOrder, fields, count);
            if (!StirrupText::ComposeFromBoxes(stirrup, text)) {
                NotDone("grade, diameter, spacing or legs are empty");
            }
            break;
        }
        case RK_BAR_PIECE: text = BarPiece::Compose(Take(*found, PieceOrder, fields, count)); break;
        default: RefuseValue("what", what);
        }
        Give(*found, text, buffer, size, length);
    });
}

rk_status rk_text_measure(rk_context context, int32_t what, const char* text, size_t text_length,
                          rk_measures* measures)
{
    return Guarded([&] {
        const auto found = Find<Context>(context);
        NeedStruct(measures, "measures");
        Give(MeasuresOf(what, TextOf(*found, text, text_length, "text")), measures);
    });
}

rk_status rk_text_compare(rk_context context, int32_t what, const char* a, size_t a_length, const char* b,
                          size_t b_length, int32_t* order)
{
    return Judge(context, a, a_length, b, b_length, order,
                 [what](const CString& left, const CString& right) {
                     switch (what) {
                     case RK_BARS: return CHABIAO_HITNESS_RANKER().CompareSteel(left, right);
                     case RK_STIRRUP: return GUJIN_HITNESS_RANKER().CompareGujin(left, right);
                     default: RefuseValue("what", what);
                     }
                 });
}

rk_status rk_name_parts(rk_context context, const char* text, size_t text_length, rk_list parts)
{
    return Guarded([&] {
        const auto found = Find<Context>(context);
        const auto list = Find<List>(parts);
        const CString name = TextOf(*found, text, text_length, "text");
        struct Parts {
            CString type;
            CString suffix;
        } both;
        BEAMNAME_HITNESS_RANKER::GetBeamType(name, both.type);
        BEAMNAME_HITNESS_RANKER::GetBeamKuaAndXuantiao(name, both.suffix);
        Put(both, std::array{&Parts::type, &Parts::suffix}, *list);
    });
}

rk_status rk_bars_head(rk_context context, const char* text, size_t text_length, char* buffer, size_t size,
                       size_t* length)
{
    return Rewrite(context, text, text_length, buffer, size, length, BarText::HeadPiece);
}

rk_status rk_bars_same_diameter(rk_context context, const char* a, size_t a_length, const char* b,
                                size_t b_length, int32_t* same)
{
    return Judge(context, a, a_length, b, b_length, same, BarText::SameFirstDiameter);
}

rk_status rk_bars_same_essence(rk_context context, const char* a, size_t a_length, const char* b,
                               size_t b_length, int32_t* same)
{
    return Judge(context, a, a_length, b, b_length, same, BarText::SameEssence);
}

rk_status rk_stirrup_tight_form(rk_context context, const char* text, size_t text_length, char* buffer,
                                size_t size, size_t* length)
{
    return Rewrite(context, text, text_length, buffer, size, length, StirrupText::TightForm);
}

rk_status rk_elevation_key(rk_context context, const char* text, size_t text_length, int32_t key,
                           char* buffer, size_t size, size_t* length)
{
    return Rewrite(context, text, text_length, buffer, size, length, [key](CString level) {
        if (!PressKey(level, key)) {
            NotDone("the key does not apply to this elevation");
        }
        return level;
    });
}

// The bar panel as a person would keep it on paper: bars in groups, and texts derived from them anew
// each time. Shares no code with the panel.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace SteelModel {

struct Bars {
    int count;  // list rows but for the split, where 0 is none
    int grade;
    int diameter;
    int upper;
    int lower;
    bool operator==(const Bars&) const = default;
};

// Everything that can be seen of a panel.
struct State {
    std::array<std::string, 5> texts;
    std::array<std::vector<std::string>, 5> pieces;
    std::array<int, 5> firstRows{-1, -1, -1, -1, -1};
    std::array<int, 100> rowType;
    std::array<int, 100> rowPos;
    std::vector<std::string> rows;
    bool newPiece = true;
    int curType = -1, curPos = -1, remembered = -1;
    int type = -1, later = -1, count = -1, grade = -1, diameter = -1, upper = -1, lower = -1, end = -1,
        row = -1;  // list selections
    std::vector<std::string> sent;
    bool operator==(const State&) const = default;
};

// One delivery; the property item gets neither mode nor code.
inline std::string Sent(const std::string& to, int mode, const std::string& text, int code)
{
    return to + ' ' + std::to_string(mode) + ' ' + std::to_string(code) + ' ' + text;
}

class Panel {
public:
    int kind = -1;
    bool toItem = true;
    bool inParent = true;

    void Init()
    {
        m_groups = {};
        m_order.clear();
        m_stripped = None;
        static const std::array<int, 10> first = {0, 0, 1, 2, 3, 5, 0, 0, 0, 0};
        m_row = m_later = -1;
        PickType(first[At(kind + 1)]);
    }

    void PickType(int row)
    {
        m_type = Allowed(row) ? row : -1;
        if (m_type == -1) {
            return;
        }
        m_remembered = m_row;
        Show(row, 0);
        m_newPiece = Of(row).bars.empty();
        m_row = FirstRow(GroupOf(row));
    }

    void PickLater(int row)
    {
        ClearColumns();
        m_newPiece = true;
        m_later = row == 0 && !(m_type != -1 && Of(m_type).bars.empty()) ? 0 : -1;
        m_remembered = m_row;
    }

    void PickRow(int row)
    {
        m_row = row;
        const Place place = PlaceOf(row);
        m_newPiece = false;
        Show(m_groups[place.group].type, place.pos);
        m_curType = m_groups[place.group].type;
        m_curPos = place.pos;
    }

    void PickCount(int row) { Pick(m_count, row); }
    void PickGrade(int row) { Pick(m_grade, row); }
    void PickDiameter(int row) { Pick(m_diameter, row); }
    void PickEnd(int row) { Pick(m_end, row); }
    void PickUpper(int row) { Pick(m_upper, row); }
    void PickLower(int row) { Pick(m_lower, row); }

    void Delete()
    {
        if (m_row == -1) {
            return;
        }
        const Place place = PlaceOf(m_row);
        std::vector<Bars>& bars = m_groups[place.group].bars;
        bars.erase(bars.begin() + place.pos);
        if (bars.empty()) {
            std::erase(m_order, place.group);
        }
        if (m_order.empty()) {
            ClearColumns();
            m_newPiece = true;
            m_type = m_row = m_later = m_remembered = m_curType = m_curPos = -1;
            return;
        }
        PickRow(std::min(m_row, Rows() - 1));
        m_remembered = m_row;
    }

    // True when the texts now lack their ends, so that only Init may follow.
    bool Confirm()
    {
        if (toItem) {
            m_stripped = ForItem;
            if (kind != -1) {
                Send("item", 0, Text(kind <= 4 ? At(kind) : 0), 0);
            }
        } else if (!m_order.empty() && inParent) {
            if (kind == -1) {
                for (std::size_t g = 0; g < 5; ++g) {
                    if (!m_groups[g].bars.empty()) {
                        Send("parent", 1, Text(g), 20);
                        break;
                    }
                }
            } else if (kind <= 4) {
                Send("parent", 1, Text(At(kind)), 20 + kind);
            }
        } else if (!m_order.empty()) {
            m_stripped = ForHost;
            for (const auto& [group, mode, code] : {std::array{0, 2, 0}, {3, 0, 8}, {4, 0, 9}}) {
                if (!m_groups[At(group)].bars.empty()) {
                    Send("host", mode, Text(At(group)), code);
                }
            }
        }
        return m_stripped != None;
    }

    [[nodiscard]] int Rows() const
    {
        std::size_t rows = 0;
        for (const Group& group : m_groups) {
            rows += group.bars.size();
        }
        return static_cast<int>(rows);
    }

    [[nodiscard]] State Seen() const
    {
        State state;
        state.rowType.fill(-1);
        state.rowPos.fill(-1);
        for (const std::size_t g : m_order) {
            state.firstRows[g] = FirstRow(g);
            for (std::size_t pos = 0; pos < m_groups[g].bars.size(); ++pos) {
                state.rowType[state.rows.size()] = m_groups[g].type;
                state.rowPos[state.rows.size()] = static_cast<int>(pos);
                state.rows.push_back(Piece(g, pos));
                state.pieces[g].push_back(Piece(g, pos));
            }
            state.texts[g] = Text(g);
        }
        state.newPiece = m_newPiece;
        state.curType = m_curType, state.curPos = m_curPos, state.remembered = m_remembered;
        state.type = m_type, state.later = m_later, state.count = m_count, state.grade = m_grade;
        state.diameter = m_diameter, state.upper = m_upper, state.lower = m_lower, state.end = m_end;
        state.row = m_row;
        state.sent = m_sent;
        return state;
    }

private:
    struct Group {
        int type = -1;
        int end = 2;  // row of the terminator of its last piece
        std::vector<Bars> bars;
    };
    struct Place {
        std::size_t group;
        int pos;
    };
    enum Stripped { None, ForItem, ForHost };

    void Send(const std::string& to, int mode, const std::string& text, int code)
    {
        const auto place = to == "item" ? m_sent.begin() + m_items++ : m_sent.end();
        m_sent.insert(place, Sent(to, mode, text, code));
    }

    static std::size_t At(int n) { return static_cast<std::size_t>(n); }
    static std::size_t GroupOf(int type) { return At(type <= 3 ? type : type - 1); }
    Group& Of(int type) { return m_groups[GroupOf(type)]; }

    [[nodiscard]] bool Allowed(int row) const
    {
        switch (kind) {
        case -1: return true;
        case 3: return row == 3 || row == 4;
        case 4: return row == 5;
        case 7:
        case 8: return row == 0 || (!toItem && row >= 3);
        default: return row == (kind <= 2 ? kind : 0);
        }
    }

    [[nodiscard]] std::string Piece(std::size_t g, std::size_t pos) const
    {
        static const std::array<const char*, 6> heads = {"", "", "+(", "*", "N", "G"};
        static const std::array<const char*, 8> diameters = {"10", "12", "14", "16",
                                                             "18", "20", "22", "25"};
        const Group& group = m_groups[g];
        const Bars& bars = group.bars[pos];
        std::string piece = pos == 0 ? heads[At(group.type)] : "+";
        piece += std::to_string(bars.count + 1) + "ABCD"[bars.grade] + diameters[At(bars.diameter)];
        if (bars.upper > 0) {
            piece += ' ' + std::to_string(bars.upper) + '/' + std::to_string(bars.lower);
        }
        if (pos + 1 == group.bars.size()) {
            piece += std::string(group.type == 2 ? ")" : "") + ";, "[group.end];
        }
        return piece;
    }

    [[nodiscard]] std::string Text(std::size_t g) const
    {
        std::string text;
        for (std::size_t pos = 0; pos < m_groups[g].bars.size(); ++pos) {
            text += Piece(g, pos);
        }
        if (text.empty() || m_stripped == None || (m_stripped == ForHost && (g == 1 || g == 2))) {
            return text;
        }
        if (g == 2) {
            return text.substr(2, text.size() - 4);
        }
        // A blank of a row split keeps the terminator on.
        return text.find(' ') < text.size() - 1 ? text : text.substr(0, text.size() - 1);
    }

    [[nodiscard]] int FirstRow(std::size_t wanted) const
    {
        std::size_t row = 0;
        for (const std::size_t g : m_order) {
            if (g == wanted) {
                return static_cast<int>(row);
            }
            row += m_groups[g].bars.size();
        }
        return -1;
    }

    [[nodiscard]] Place PlaceOf(int row) const
    {
        for (const std::size_t g : m_order) {
            const int size = static_cast<int>(m_groups[g].bars.size());
            if (row < size) {
                return {g, row};
            }
            row -= size;
        }
        return {0, -1};
    }

    void ClearColumns()
    {
        m_count = m_diameter = -1;
        m_grade = 1;
        m_upper = m_lower = 0;
        m_end = 2;
    }

    // The lists show a piece, or wait for a group's first one.
    void Show(int type, int pos)
    {
        const Group& group = Of(type);
        m_type = type;
        if (group.bars.empty()) {
            ClearColumns();
        } else {
            const Bars& bars = group.bars[At(pos)];
            m_count = bars.count, m_grade = bars.grade, m_diameter = bars.diameter;
            m_upper = bars.upper, m_lower = bars.lower;
            m_end = At(pos) + 1 == group.bars.size() ? group.end : 2;
            m_type = group.type;  // a first piece of the other torsion type says so
            m_curType = type;
            m_curPos = pos;
        }
        m_later = pos == 0 ? -1 : 0;
    }

    void Pick(int& list, int row)
    {
        list = row;
        for (const int selected : {m_type, m_count, m_grade, m_diameter, m_end, m_upper, m_lower}) {
            if (selected == -1) {
                return;
            }
        }
        m_lower = m_upper == 0 ? 0 : m_lower;
        Bars bars{m_count, m_grade, m_diameter, m_upper, m_lower};
        if (m_lower == 0) {
            bars.upper = 0;
        }
        m_newPiece ? Add(bars) : Rewrite(bars);
    }

    void Rewrite(const Bars& bars)
    {
        Group& group = Of(m_curType);
        group.bars[At(m_curPos)] = bars;
        if (At(m_curPos) + 1 == group.bars.size()) {
            group.end = m_end;
        }
    }

    void Add(const Bars& bars)
    {
        Group& group = Of(m_type);
        const std::size_t g = GroupOf(m_type);
        const bool toEnd = m_remembered == -1 || m_remembered >= Rows() - 1;
        const Place behind =
            toEnd ? Place{g, static_cast<int>(group.bars.size()) - 1} : PlaceOf(m_remembered);
        const bool joins = toEnd ? !group.bars.empty() : m_groups[behind.group].type == m_type;
        const bool refused = Rows() == 99 ||
                             std::find(group.bars.begin(), group.bars.end(), bars) != group.bars.end() ||
                             (!joins && !group.bars.empty());
        if (refused) {
            m_remembered = m_row;
            return;
        }
        if (!joins) {
            group = {m_type, m_end, {}};
            const auto neighbour = std::find(m_order.begin(), m_order.end(), behind.group);
            m_order.insert(toEnd ? m_order.end() : neighbour + 1, g);
        } else if (At(behind.pos) + 1 == group.bars.size()) {
            group.end = m_end;
        }
        const int pos = joins ? behind.pos + 1 : 0;
        group.bars.insert(group.bars.begin() + pos, bars);
        PickRow(FirstRow(g) + pos);
        m_remembered = m_row;
    }

    std::array<Group, 5> m_groups;
    std::vector<std::size_t> m_order;  // of the groups that have bars, as their rows stand
    Stripped m_stripped = None;
    bool m_newPiece = true;
    int m_curType = -1, m_curPos = -1, m_remembered = -1;
    int m_type = -1, m_later = -1, m_count = -1, m_grade = -1, m_diameter = -1, m_upper = -1, m_lower = -1,
        m_end = -1, m_row = -1;
    std::vector<std::string> m_sent;  // to the item, then to the callback
    int m_items = 0;
};

}  // namespace SteelModel

// Random annotation texts: mostly what drawings hold, some of it damaged, with many repeats.
#pragma once

#include <random>
#include <string_view>

#include "tests/yardstick/Agree.h"

namespace Yardstick {

class Chance {
public:
    explicit Chance(unsigned seed) : m_engine(seed), m_tidy(OneIn(3)) {}

    unsigned Below(std::size_t n) { return static_cast<unsigned>(m_engine() % n); }
    bool OneIn(unsigned n) { return Below(n) == 0; }
    // For what only a careless hand writes: never in a third of the trials.
    bool Odd(unsigned n) { return !m_tidy && OneIn(n); }
    std::string Of(std::initializer_list<const char*> texts) { return texts.begin()[Below(texts.size())]; }
    int Of(std::initializer_list<int> numbers) { return numbers.begin()[Below(numbers.size())]; }
    std::string Upto(unsigned n) { return std::to_string(Below(n + 1)); }

    // Letters of the annotation languages, blanks, GBK characters cut anywhere, bytes that are none.
    char Byte()
    {
        static constexpr std::string_view bytes =
            "0123456789ABCDGKLNWXYabx*+-/()@.,;eE \t\r\n\v\xb1\xd6\xce\xde\x81\x5c\x80\xff\x01\x7f";
        return bytes[Below(bytes.size())];
    }

    // Now and then a character too many, one missing, a wrong one, or the text cut and turned round.
    std::string Damaged(std::string text)
    {
        if (!Odd(4)) {
            return text;
        }
        for (unsigned times = Below(4); times > 0; --times) {
            const unsigned at = Below(text.size() + 1);
            switch (Below(4)) {
            case 0: text.insert(at, 1, Byte()); break;
            case 1: text.erase(at, 1 + Below(3)); break;
            case 2: text = text.substr(at) + text.substr(0, at); break;
            default:
                text =
                    text.substr(0, at) + Byte() + text.substr(std::min<std::size_t>(at + 1, text.size()));
            }
        }
        return OneIn(10) ? std::string() : text;
    }

    std::string Bars()
    {
        std::string text = Odd(6) ? Of({"N", "G", "*", "+(", "NN", "B"}) : "";
        do {
            text += Odd(12) ? Of({"", "10", "12", "0", "-1", "99999999999"}) : Upto(9);
            text += Odd(8) ? Of({"A", "C", "AB", "BA", "b"}) : "B";
            text += Odd(10) ? Of({"", "8", "32", "4294967297"})
                            : Of({"12", "14", "16", "18", "20", "22", "25", "28"});
            text += OneIn(3) ? Of({"+", "/"}) : Odd(8) ? "++" : "";
        } while (!text.empty() && (text.back() == '+' || text.back() == '/') && !Odd(8));
        return Damaged(text + (Odd(12) ? Of({";", ",", " 4/2", ")", " "}) : ""));
    }

    std::string Stirrup()
    {
        std::string text =
            Of({"A", "A", "A", "B", "C", "AB", ""}) + Of({"6", "8", "10", "12", "", "99999999999"});
        text += Odd(5) ? Of({"-", "", "@@", "-@", "/"}) : "@";
        if (OneIn(2)) {
            text +=
                Of({"100", "120", "150", "", "1e2"}) + (Odd(3) ? Of({"(2)", "(4)", "(", "()", ")"}) : "");
            text += Odd(10) ? Of({"//", "-"}) : "/";
        }
        text += Of({"100", "150", "200", "250", "", "200.5"});
        text += Odd(6) ? Of({"", "(", "(4", "(12)", "((3)", ")2("}) : Of({"(2)", "(3)", "(4)", "(6)"});
        return Damaged(text);
    }

    std::string Section()
    {
        std::string text = Odd(6) ? Of({" ", "\t", "Y", "  Y", " y", "-"}) : "";
        text += Odd(10) ? Of({"", "99999999999", "0"}) : std::to_string(200 + 50 * Below(5));
        text += Odd(4) ? Of({"", "xx", " x", "*x"}) : Of({"x", "x", "X", "*"});
        text += Odd(10) ? Of({"", "99999999999", "-5"}) : std::to_string(300 + 100 * Below(5));
        return Damaged(text + (OneIn(4) ? Of({"/500", " Y500x250"})
                               : Odd(6) ? Of({" ", "/", "x", "\t"})
                                        : ""));
    }

    std::string Elevation()
    {
        std::string text = Odd(4) ? Of({"(", " ", "+", "--", "\v", "H"}) : "";
        text += OneIn(2) ? "-" : "";
        text += Odd(6) ? Of({"inf", "nan", "0x1A", "1e400", "1e-400", "0", "00000000000000000000001"})
                       : Upto(12);
        text += Odd(5) ? Of({"", ",", ".", "..5"}) : "." + Of({"300", "3000", "05", "6", ""});
        text += Odd(6) ? Of({"e1", "e-1", "E+2", "e", "e+", ")", "m"}) : "";
        return Damaged(text);
    }

    std::string Name()
    {
        std::string text =
            Odd(6) ? Of({"", "K", "XL", "AL", "Lb", "kl"}) : Of({"KL", "KL", "WKL", "L", "LL"});
        text += Odd(10) ? Of({"", "0", "-3", "2147483647", "-2147483648", "99999999999", "007"}) : Upto(30);
        return Damaged(text + (Odd(4) ? "" : Of({"(1)", "(2A)", "(3)", "(B)", "(", "()"})));
    }

    // Up to length texts, drawn from few or many different ones.
    List Texts(unsigned length, std::string (Chance::*make)())
    {
        List pool;
        for (unsigned i = Below(length + 1) + 1; i > 0; --i) {
            pool.push_back((this->*make)());
        }
        List texts;
        for (unsigned i = Below(length + 1); i > 0; --i) {
            texts.push_back(pool[Below(pool.size())]);
        }
        return texts;
    }

    // Whole runs with single operations before, between and behind them.
    std::string Steps(std::string_view operations)
    {
        std::string steps = OneIn(3) ? "" : "rx";
        for (unsigned i = Below(9); i > 0; --i) {
            steps += OneIn(4) ? 'r' : operations[Below(operations.size())];
        }
        return steps;
    }

    int AnyNumber() { return OneIn(2) ? static_cast<int>(m_engine()) : Of({0, -1, 1, INT_MAX, INT_MIN}); }

private:
    std::mt19937 m_engine;
    bool m_tidy;
};

}  // namespace Yardstick

// A host whose project is written down in the test.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/support/Texts.h"

inline void EmptySlots()
{
    SetBeamTypeFunc(nullptr);
    SetBeamNumberFunc(nullptr);
    SetBeamSectionFunc(nullptr);
    SetBeamEleFunc(nullptr);
    SetBeamGujinFunc(nullptr);
    SetBeamSteelFunc(nullptr);
}

// Registers its callbacks on construction and empties the slots afterwards. One at a time.
class FakeHost {
public:
    struct Names {
        std::vector<unsigned int> serials;
        Texts suffixes;
    };

    FakeHost()
    {
        s_host = this;
        SetBeamTypeFunc([](CStringArray& types) {
            s_host->m_typesOnEntry = TextsOf(types);
            Append(types, s_host->m_types);
        });
        SetBeamNumberFunc([](CUIntArray& serials, CStringArray& suffixes, CString type) {
            s_host->m_numberCalls.emplace_back(type.View());
            s_host->m_numberArraysWereEmpty &= serials.IsEmpty() && suffixes.IsEmpty();
            const Names& names = s_host->m_names[std::string(type.View())];
            for (const unsigned int serial : names.serials) {
                serials.Add(serial);
            }
            Append(suffixes, names.suffixes);
        });
        SetBeamSectionFunc([](CStringArray& list) { Append(list, s_host->m_texts); });
        SetBeamEleFunc([](CStringArray& list) { Append(list, s_host->m_texts); });
        SetBeamGujinFunc([](CStringArray& list) { Append(list, s_host->m_texts); });
        SetBeamSteelFunc([](CStringArray& list, CString /*kind*/) { Append(list, s_host->m_texts); });
    }

    ~FakeHost()
    {
        EmptySlots();
        s_host = nullptr;
    }

    FakeHost(const FakeHost&) = delete;
    FakeHost& operator=(const FakeHost&) = delete;

    Texts m_texts;  // what the section, elevation, stirrup and bar callbacks answer
    Texts m_types;
    std::map<std::string, Names> m_names;  // by beam type

    Texts m_typesOnEntry;  // what the last type callback found in its array
    Texts m_numberCalls;
    bool m_numberArraysWereEmpty = true;

private:
    static void Append(CStringArray& list, const Texts& texts)
    {
        for (const std::string& text : texts) {
            list.Add(text.c_str());
        }
    }

    static inline FakeHost* s_host = nullptr;
};

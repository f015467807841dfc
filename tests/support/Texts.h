// Candidate lists as plain vectors, so that a test compares and prints them whole.
#pragma once

#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include "RankerModule.h"

using Texts = std::vector<std::string>;
using Stamps = std::vector<unsigned int>;

inline Texts TextsOf(const CStringArray& array)
{
    Texts texts;
    for (const CString& text : array) {
        texts.emplace_back(text.View());
    }
    return texts;
}

inline Stamps StampsOf(const CUIntArray& array) { return {array.begin(), array.end()}; }

inline void Fill(CStringArray& array, const Texts& texts)
{
    array.RemoveAll();
    for (const std::string& text : texts) {
        array.Add(text.c_str());
    }
}

inline void Fill(CUIntArray& array, const Stamps& numbers)
{
    array.RemoveAll();
    for (const unsigned int number : numbers) {
        array.Add(number);
    }
}

inline void PrintTo(const CString& text, std::ostream* out) { *out << '"' << text.View() << '"'; }

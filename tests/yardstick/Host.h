// A host that answers the module's questions from a plain list of texts.
#pragma once

#include "RankerModule.h"
#include "tests/yardstick/Bars.h"
#include "tests/yardstick/Elevations.h"
#include "tests/yardstick/Names.h"
#include "tests/yardstick/Sections.h"
#include "tests/yardstick/Stirrups.h"

namespace Yardstick {

inline void AddAll(CStringArray& list, const List& texts)
{
    for (const std::string& text : texts) {
        list.Add(text.c_str());
    }
}

inline void AddProjectTexts(CStringArray& list) { AddAll(list, projectTexts); }

// Registers callbacks that answer with projectTexts, repeats included; beam names are taken apart.
inline void AnswerFromProjectTexts()
{
    SetBeamSectionFunc(AddProjectTexts);
    SetBeamEleFunc(AddProjectTexts);
    SetBeamGujinFunc(AddProjectTexts);
    SetBeamSteelFunc([](CStringArray& list, CString) { AddProjectTexts(list); });
    SetBeamTypeFunc([](CStringArray& list) {
        List types;
        AnswerTypes(types);
        AddAll(list, types);
    });
    SetBeamNumberFunc([](CUIntArray& serials, CStringArray& suffixes, CString type) {
        std::vector<unsigned> numbers;
        List texts;
        AnswerNumbers(numbers, texts, std::string(type.View()));
        for (const unsigned number : numbers) {
            serials.Add(number);
        }
        AddAll(suffixes, texts);
    });
}

}  // namespace Yardstick

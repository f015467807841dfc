// CItemConstraints: the values that a property item allows.
#pragma once

#include "griditem/Export.h"
#include "platform/text/StringList.h"

class GRIDITEM_API CItemConstraints : public CStringList {
public:
    CItemConstraints() : CStringList(10) {}

    // Appends a value and answers its index.
    int AddConstraint(CString strConstraint);

    // Index of the value that is current; any number is kept as it is, 0 at first.
    void SetCurrent(int nIndex);
    [[nodiscard]] int GetCurrent() const;

private:
    int m_nCurrent = 0;
};

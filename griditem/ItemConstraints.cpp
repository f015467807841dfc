// The current one of an item's allowed values.
#include "griditem/ItemConstraints.h"

int CItemConstraints::AddConstraint(CString strConstraint)
{
    AddTail(strConstraint);
    return GetCount() - 1;
}

void CItemConstraints::SetCurrent(int nIndex) { m_nCurrent = nIndex; }
int CItemConstraints::GetCurrent() const { return m_nCurrent; }

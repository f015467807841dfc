// CListItems: the child items of a property item.
#pragma once

#include "platform/text/StringList.h"

class CPropertyGridItem;

// Holds pointers and frees its nodes alone; the items stay their owner's.
class CListItems : public CList<CPropertyGridItem*> {
public:
    CListItems() : CList(10) {}
};

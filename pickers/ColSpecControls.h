// CColSpecEdit and CColSpecList: controls of a picker that pass right clicks on to it.
#pragma once

#include "host/Export.h"
#include "platform/windows/CEdit.h"
#include "platform/windows/CListBox.h"

// A right press goes to the parent with both parameters 0, then on to the box's default handling.
class RANKER_API CColSpecEdit : public CEdit {
public:
    ~CColSpecEdit() override;

    void OnRButtonDown(UINT nFlags, CPoint point);

    DECLARE_MESSAGE_MAP()
};

// A right press goes to the parent with both parameters 0 and no further, so that the row stays.
class RANKER_API CColSpecList : public CListBox {
public:
    ~CColSpecList() override;

    void OnRButtonDown(UINT nFlags, CPoint point);

    DECLARE_MESSAGE_MAP()
};

// A host outside the source tree: ranks once and opens a picker.
#include <cstdio>

#include "RankerModule.h"

// The module makes its application object before any of the host's static objects.
static const bool s_hadApplication = AfxGetApp() != nullptr;

int main()
{
    SteelBiao table;
    table.InintOnce();
    CHABIAO_HITNESS_RANKER ranker;
    ranker.SetPara(300, 1000, &table, "1");
    CStringArray candidates;
    ranker.ProcessController(candidates);
    CHBarPropertySheet picker;
    CPropertyGridItem item;
    item.SetHWnd(&item);
    item.SetValue("B8@150");
    const BOOL bCreated = picker.Create(CHBarPropertySheet::IDD);
    picker.m_pItem = &item;
    picker.UpdateValue();
    picker.OnRButtonDown(0, CPoint());
    std::printf("%d %s\n", candidates.GetSize() > 0 && bCreated && s_hadApplication ? 1 : 0,
                static_cast<const char*>(item.GetValue()));
    return 0;
}

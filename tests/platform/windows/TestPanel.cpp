// The test panel's message map.
#include "TestPanel.h"

BEGIN_MESSAGE_MAP(TestPanel, CDialog)
ON_WM_RBUTTONDOWN()
ON_WM_KEYDOWN()
ON_EN_CHANGE(TestPanelData::Box, &TestPanel::OnBox)
ON_EN_CHANGE(TestPanelData::Digits, &TestPanel::OnDigits)
ON_LBN_SELCHANGE(TestPanelData::List, &TestPanel::OnList)
ON_LBN_SELCHANGE(TestPanelData::Columns, &TestPanel::OnColumns)
ON_BN_CLICKED(TestPanelData::Button, &TestPanel::OnButton)
END_MESSAGE_MAP()

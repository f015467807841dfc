# The module: one shared library made of its rooms.
add_library(RankerModule SHARED
  RankerModule.cpp
  geometry/DPoint.cpp
  host/BarText.cpp
  host/HostLink.cpp
  host/StirrupText.cpp
  panels/BarGroup.cpp
  panels/BarPiece.cpp
  panels/BeamGujinDlg.cpp
  panels/BeamLevelDlg.cpp
  panels/BeamNameDlg.cpp
  panels/BeamSecDlg.cpp
  panels/BeamSteelDlg.cpp
  panels/BeamSteelDlgEdit.cpp
  panels/BeamSteelDlgLists.cpp
  panels/LevelText.cpp
  panels/private/ListRows.cpp
  panels/NameText.cpp
  panels/private/PanelFrame.cpp
  panels/SectionText.cpp
  pickers/ColSpecControls.cpp
  pickers/HBarPropertySheet.cpp
  pickers/private/ItemBinding.cpp
  pickers/VBarPropertySheet.cpp
  rankers/private/BarOrder.cpp
  rankers/BeamLevelRanker.cpp
  rankers/BeamNameRanker.cpp
  rankers/BeamSizeRanker.cpp
  rankers/ChaBiaoRanker.cpp
  rankers/ChaBiaoRankerOrder.cpp
  rankers/GuJinRanker.cpp
  rankers/HitnessRanker.cpp
  rankers/private/Repeats.cpp
  tables/GuJinBiao.cpp
  tables/SteelBiao.cpp)
target_include_directories(RankerModule PUBLIC
  $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>)
target_link_libraries(RankerModule PUBLIC platform griditem bartext PRIVATE $<BUILD_INTERFACE:ranker_warnings>)

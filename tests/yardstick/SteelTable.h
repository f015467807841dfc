// Yardstick of the longitudinal bar table: its rows as a design office lists them, and plain look-ups.
#pragma once

#include <cstdint>
#include <sstream>

#include "tests/yardstick/Texts.h"

namespace Yardstick {

// One line a through bar group: width in mm, through bars, then area in mm² and complete bars by turns.
inline constexpr const char* steelLines[] = {
    "250 2B12: 380 2B12+1B14 427 2B12+1B16 452 4B12 534 2B12+2B14 628 2B12+2B16",
    "250 2B14: 461 3B14 509 2B14+1B16 563 2B14+1B18 615 4B14 710 2B14+2B16 817 2B14+2B18",
    "250 2B16: 402 2B16 603 3B16 657 2B16+1B18 723 2B16+1B20 804 4B16 911 2B16+2B18 1030 2B16+2B20 "
    "1206 4B16/2B16 1313 2B16+2B18/2B16 1432 2B16+2B20/2B16",
    "250 2B18: 509 2B18 763 3B18 830 2B18+1B20 889 2B18+1B22 1017 4B18 1137 2B18+2B20 1269 2B18+2B22 "
    "1526 4B18/2B18 1645 2B18+2B20/2B18 1777 2B18+2B22/2B18",
    "250 2B20: 628 2B20 941 3B20 1008 2B20+1B22 1119 2B20+1B25 1256 4B20 1389 2B20+2B22 1570 "
    "4B20/2B20 1610 2B20+2B25 2016 2B20+2B22/2B20",
    "250 2B22: 760 2B22 1140 3B22 1251 2B22+1B25 1520 2B22+2B22 1742 2B22+2B25",
    "250 2B25: 982 2B25 1473 3B25 1964 4B25",
    "300 2B12: 226 2B12 565 5B12 628 2B12+2B16 688 2B12+3B14 716 2B12+3B16",
    "300 2B14: 308 2B14 563 2B14+1B18 615 3B14 710 2B14+2B16 769 5B14 817 2B14+2B18 911 2B14+3B16 "
    "1071 2B14+3B18",
    "300 2B16: 402 2B16 603 3B16 657 2B16+1B18 723 2B16+1B20 804 4B16 911 2B16+2B18 1005 5B16 1030 "
    "2B16+2B20 1166 2B16+3B18 1343 2B16+3B20 1407 5B16/2B16 1568 2B16+3B18/2B16",
    "300 2B18: 509 2B18 763 3B18 830 2B18+1B20 889 2B18+1B22 1017 4B18 1137 2B18+2B20 1269 2B18+2B22 "
    "1272 5B18 1452 2B18+3B20 1649 2B18+3B22 1780 5B18/2B18 1961 2B18+3B20/2B18",
    "300 2B20: 628 2B20 941 3B20 1008 2B20+1B22 1119 2B20+1B25 1256 4B20 1389 2B20+2B22 1610 "
    "2B20+2B25 1570 5B20 1769 2B20+3B22 2101 2B20+3B25 2200 5B20/2B20 2397 5B22/2B20",
    "300 2B22: 760 2B22 1140 3B22 1251 2B22+1B25 1520 4B22 1742 2B22+2B25 1900 5B22 2233 2B22+3B25 "
    "2661 5B22/2B22 2993 2B22+3B25/2B22",
    "300 2B25: 982 2B25 1473 3B25 1964 4B25 2454 5B25",
    "350 2B14: 308 2B14 817 2B14+2B18 1071 2B14+3B18",
    "350 2B16: 402 2B16 804 4B16 911 2B16+2B18 1005 5B16 1030 2B16+2B20 1166 2B16+3B18 1206 6B16 1343 "
    "2B16+3B20 1420 2B16+4B18 1608 6B16/2B16",
    "350 2B18: 509 2B18 1017 4B18 1137 2B18+2B20 1269 2B18+2B22 1272 5B18 1453 2B18+3B20 1526 6B18 "
    "1649 2B18+3B22 1766 2B18+4B20 2029 2B18+4B22 2036 6B18/2B18",
    "350 2B20: 628 2B20 1256 4B20 1389 2B20+2B22 1570 5B20 1610 2B20+2B25 1769 2B20+3B22 1884 6B20 "
    "2001 2B20+3B25 2149 2B20+4B22 2513 6B20/2B20",
    "350 2B22: 760 2B22 1520 4B22 1742 2B22+2B25 1900 5B22 2233 2B22+3B25 2281 6B22 2724 2B22+4B25 "
    "3041 6B22/2B22",
    "350 2B25: 982 2B25 1964 4B25 2454 5B25 2945 6B25 3927 6B25/2B25",
    "400 2B14: 308 2B14 1071 2B14+2B18",
    "400 2B16: 402 2B16 1005 5B16 1030 2B16+2B20 1166 2B16+3B18 1206 6B16 1343 2B16+3B20 1420 "
    "2B16+4B18 1608 6B16/2B16",
    "400 2B18: 509 2B18 1017 4B18 1137 2B18+2B20 1269 2B18+2B22 1272 5B18 1453 2B18+3B20 1526 6B18 "
    "1649 2B18+3B22 1766 2B18+4B20 2029 2B18+4B22 2036 6B18/2B18",
    "400 2B20: 628 2B20 1256 4B20 1389 2B20+2B22 1570 5B20 1610 2B20+2B25 1769 2B20+3B22 1884 6B20 "
    "2001 2B20+3B25 2149 2B20+4B22 2513 6B20/2B20",
    "400 2B22: 760 2B22 1520 4B22 1742 2B22+2B25 1900 5B22 2233 2B22+3B25 2281 6B22 2724 2B22+4B25 "
    "3041 6B22/2B22",
    "400 2B25: 982 2B25 1964 4B25 2454 5B25 2945 6B25 3927 6B25/2B25",
    "400 4B25: 1963 4B25 2945 6B25 3927 6B25/2B25 4910 6B25/4B25",
    "450 2B16: 402 2B16 1343 2B16+3B20 1407 7B16 1420 2B16+4B18 1608 6B16/2B16",
    "450 2B18: 509 2B18 1269 2B18+2B22 1272 5B18 1453 2B18+3B20 1526 6B18 1649 2B18+3B22 1766 "
    "2B18+4B20 1780 7B18 2029 2B18+4B22",
    "450 2B20: 628 2B20 1256 4B20 1389 2B20+2B22 1570 5B20 1610 2B20+2B25 1769 2B20+3B22 1884 6B20 "
    "2001 2B20+3B25 2149 2B20+4B22 2200 7B20 2513 8B20",
    "450 2B22: 760 2B22 1520 4B22 1742 2B22+2B25 1900 5B22 2233 2B22+3B25 2281 6B22 2661 7B22 2724 "
    "2B22+4B25",
    "450 2B25: 982 2B25 1964 4B25 2454 5B25 2945 6B25 3436 7B25",
    "450 4B25: 1963 4B25 2945 6B25 3437 7B25 4419 7B25/2B25 4910 6B25/4B25 5401 7B25/4B25 5892 "
    "7B25/5B25 6383 7B25/6B25",
    "500 2B16: 402 2B16 1608 8B16",
    "500 2B18: 509 2B18 1526 6B18 1649 2B18+3B22 1766 2B18+4B20 1780 7B18 2029 2B18+4B22",
    "500 2B20: 1610 2B20+2B25 628 2B20 1769 2B20+3B22 1884 6B20 2001 2B20+3B25 2149 2B20+4B22 2200 "
    "7B20 2513 8B20",
    "500 2B22: 760 2B22 1520 4B22 1742 2B22+2B25 1900 5B22 2233 2B22+3B25 2281 6B22 2661 7B22 2724 "
    "2B22+4B25 3041 8B22",
    "500 2B25: 982 2B25 1964 4B25 2454 5B25 2945 6B25 3436 7B25 3927 6B25/2B25",
    "500 4B25: 1963 4B25 2945 6B25 3437 7B25 4419 7B25/2B25 4910 6B25/4B25 5410 7B25/4B25 5892 "
    "7B25/5B25 6383 7B25/6B25 6874 7B25/7B25",
    "550 2B18: 509 2B18 2029 2B18+4B22 2036 8B18",
    "550 2B20: 628 2B20 2200 7B20 2513 8B20",
    "550 2B22: 760 2B22 1900 5B22 2233 2B22+3B25 2281 6B22 2661 7B22 2724 2B22+4B25 3041 8B22",
    "550 2B25: 982 2B25 1964 4B25 2454 5B25 2945 6B25 3436 7B25 3927 8B25",
    "550 4B25: 1963 4B25 2945 6B25 3437 7B25 3927 8B25 4910 8B25/2B25 5892 8B25/4B25 6874 8B25/6B25 "
    "7854 8B25/8B25",
    "600 2B20: 628 2B20 2200 7B20 2513 8B20",
    "600 2B22: 760 2B22 2233 2B22+3B25 2281 6B22 2661 7B22 2724 2B22+4B25 3041 8B22",
    "600 2B25: 982 2B25 2454 5B25 2945 6B25 3436 7B25 3927 8B25",
    "600 4B25: 1963 4B25 2945 6B25 3437 7B25 3927 8B25 4419 9B25 4910 8B25/2B25 5401 9B25/2B25 5892 "
    "8B25/4B25 6383 9B25/4B25 6874 9B25/5B25 7365 9B25/6B25 7854 9B25/7B25",
};

struct SteelRow {
    int width = 0;
    int area = 0;
    std::string top;
    std::string total;
    std::string bottom;
};

inline std::string CounterPartDiJin(int area)
{
    return area <= 400    ? "3B12"
           : area <= 570  ? "3B14"
           : area <= 700  ? "3B16"
           : area <= 880  ? "3B18"
           : area <= 1050 ? "3B20"
           : area <= 1300 ? "3B22"
                          : "3B25";
}

struct SteelTable {
    void InintOnce()
    {
        for (const char* line : steelLines) {
            std::istringstream words(line);
            SteelRow row;
            words >> row.width >> row.top;
            row.top.pop_back();
            while (words >> row.area >> row.total) {
                row.bottom = CounterPartDiJin(row.area);
                rows.push_back(row);
            }
        }
    }

    [[nodiscard]] std::vector<SteelRow> RowsOfBand(int nWidth) const
    {
        const int nominal = nWidth < 200   ? 0
                            : nWidth < 275 ? 250
                            : nWidth < 325 ? 300
                            : nWidth < 375 ? 350
                            : nWidth < 425 ? 400
                            : nWidth < 475 ? 450
                            : nWidth < 525 ? 500
                            : nWidth < 575 ? 550
                            : nWidth < 701 ? 600
                                           : 0;
        std::vector<SteelRow> band;
        std::copy_if(rows.begin(), rows.end(), std::back_inserter(band),
                     [&](const SteelRow& row) { return row.width == nominal; });
        return band;
    }

    // The nearest row among those that added a text; its index in the band.
    template <class Fits>
    int FirstPass(int nWidth, int nArea, int tolerance, std::string SteelRow::*field, List& list,
                  Fits fits) const
    {
        const std::vector<SteelRow> band = RowsOfBand(nWidth);
        int nearest = -1;
        std::int64_t smallest = tolerance;
        for (std::size_t i = 0; i < band.size(); ++i) {
            const std::int64_t difference = std::abs(std::int64_t{band[i].area} - nArea);
            if (difference < tolerance && fits(band[i]) && Take(list, band[i].*field) &&
                difference < smallest) {
                smallest = difference;
                nearest = static_cast<int>(i);
            }
        }
        return nearest;
    }

    int Widening(int nWidth, int nArea, std::string SteelRow::*field, List& list) const
    {
        const int result = FirstPass(nWidth, nArea, 70, field, list, [](const SteelRow&) { return true; });
        std::vector<SteelRow> band = RowsOfBand(nWidth);
        if (band.empty() || !list.empty()) {
            return result;
        }
        if (nArea > band.back().area) {
            std::reverse(band.begin(), band.end());
        } else if (nArea >= band.front().area) {
            return result;
        }
        for (std::size_t i = 0; i < band.size() && list.size() < 8; ++i) {
            Take(list, band[i].*field);
        }
        return result;
    }

    int GetTopJin(int nWidth, int nArea, List& list) const
    {
        return Widening(nWidth, nArea, &SteelRow::top, list);
    }

    int GetTotalJin(int nWidth, int nArea, List& list) const
    {
        return Widening(nWidth, nArea, &SteelRow::total, list);
    }

    int GetDiJin(int nWidth, int nArea, List& list) const
    {
        Widening(nWidth, nArea, &SteelRow::bottom, list);
        return -1;
    }

    int GetExactTotalJin(int nWidth, int nArea, const std::string& strTopJin, List& list) const
    {
        list.push_back(strTopJin);
        return FirstPass(nWidth, nArea, 30, &SteelRow::total, list,
                         [&](const SteelRow& row) { return row.top == strTopJin; });
    }

    std::vector<SteelRow> rows;
};

}  // namespace Yardstick

// Moving, turning and comparing points.
#include "geometry/DPoint.h"

#include <cmath>

namespace {

constexpr double Pi = 3.14159265359;  // to the digits that the host's drawings were made with
constexpr float StartCoordinate = -1000.0F;
constexpr double Tolerance = 0.001;

bool IsNear(float a, float b)
{
    return std::fabs(static_cast<double>(a) - static_cast<double>(b)) < Tolerance;
}

}  // namespace

DPoint::DPoint() : DPoint(StartCoordinate, StartCoordinate) {}

DPoint::DPoint(float x, float y) : m_fX(x), m_fY(y), m_nTag(0) {}

void DPoint::operator=(const DPoint& other)
{
    m_fX = other.m_fX;
    m_fY = other.m_fY;
    m_nTag = other.m_nTag;
}

bool DPoint::operator==(const DPoint& other) const
{
    return IsNear(m_fX, other.m_fX) && IsNear(m_fY, other.m_fY) && m_nTag == other.m_nTag;
}

void DPoint::AdjustCoord(float dx, float dy)
{
    m_fX += dx;
    m_fY += dy;
}

void DPoint::RotateMe(double cx, double cy, double angle)
{
    const double a = Pi * angle / 180.0;
    const double dx = static_cast<double>(m_fX) - cx;
    const double dy = static_cast<double>(m_fY) - cy;
    m_fX = static_cast<float>(dx * std::cos(a) - dy * std::sin(a) + cx);
    m_fY = static_cast<float>(dx * std::sin(a) + dy * std::cos(a) + cy);
}

void DPoint::TransformCoord(float tx, float ty, float sx, float sy, float s, float c)
{
    const float x = m_fX;
    const float y = m_fY;
    m_fX = sx * x * c - sy * y * s + tx;
    m_fY = sx * x * s + sy * y * c + ty;
}

// A small point in the plane for the host; the module itself does not use it.
#pragma once

// As RANKER_API, which this room does not know.
#if !defined(_WIN32)
#define GEOMETRY_API __attribute__((visibility("default")))
#elif defined(RankerModule_EXPORTS)
#define GEOMETRY_API __declspec(dllexport)
#else
#define GEOMETRY_API __declspec(dllimport)
#endif

struct GEOMETRY_API DPoint {
    float m_fX;
    float m_fY;
    int m_nTag;  // a word that travels with the point

    DPoint();                  // (-1000, -1000), tag 0
    DPoint(float x, float y);  // tag 0

    void operator=(const DPoint& other);
    DPoint(const DPoint& other) = default;

    // Both coordinates differ by less than 0.001 and the tags are the same.
    bool operator==(const DPoint& other) const;

    void AdjustCoord(float dx, float dy);
    // About (cx, cy) by an angle in degrees, from the x axis towards the y axis.
    void RotateMe(double cx, double cy, double angle);
    // Scales by (sx, sy), rotates by the angle whose sine is s and cosine is c, shifts by (tx, ty).
    void TransformCoord(float tx, float ty, float sx, float sy, float s, float c);
};

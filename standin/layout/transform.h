// The geometry of items: rotations in the host's six orders, and axes in space.
//
// Axes are left-handed: +X right, +Y up, +Z forward. A positive heading turns forward towards right, a positive pitch turns
// forward down, a positive bank turns right up. The name of an order reads as a matrix product: HPB is heading * pitch *
// bank.
#pragma once

#include <array>

namespace standin {

using Vec3 = std::array<double, 3>;

// The images of the three axes, so `columns[2]` is where +Z goes.
struct Matrix3 {
  std::array<Vec3, 3> columns{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
};

// The host's numbers of the orders.
enum class RotationOrder : int { PHB = 0, HBP = 1, BPH = 2, HPB = 3, PBH = 4, BHP = 5 };

Vec3 operator+(const Vec3& a, const Vec3& b);
Vec3 operator-(const Vec3& a, const Vec3& b);
Vec3 operator*(const Vec3& a, double factor);
double dot(const Vec3& a, const Vec3& b);
Vec3 cross(const Vec3& a, const Vec3& b);
double length(const Vec3& v);

Vec3 operator*(const Matrix3& m, const Vec3& v);
Matrix3 operator*(const Matrix3& a, const Matrix3& b);
Matrix3 transposed(const Matrix3& m);
// Zero when the matrix has no inverse.
Matrix3 inverted(const Matrix3& m);
Matrix3 scaling(const Vec3& factors);

// Angles are heading, pitch, bank in radians, whatever the order.
Matrix3 rotation(const Vec3& headingPitchBank, RotationOrder order);
// The angles of a pure rotation. Where two axes fall together the last angle of the order is 0.
Vec3 anglesOf(const Matrix3& rotation, RotationOrder order);

// Where an item is: its axes in space with their lengths, and its position.
struct Placement {
  Matrix3 axes;
  Vec3 position{};
};

}  // namespace standin

// Faces of every shape as triangles.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "gltf/triangles.h"

namespace standin::gltf {
namespace {

// Twice its area, as a vector.
Vec3 across(const Vec3& a, const Vec3& b, const Vec3& c) {
  const Vec3 p = b - a;
  const Vec3 q = c - a;
  return {p[1] * q[2] - p[2] * q[1], p[2] * q[0] - p[0] * q[2], p[0] * q[1] - p[1] * q[0]};
}

double areaOf(const std::vector<Vec3>& face, const Triangles& triangles) {
  double area = 0;
  for (const auto& [a, b, c] : triangles.corners) area += length(across(face[a], face[b], face[c])) / 2;
  return area;
}

// Of a flat face, whatever its shape.
double areaOf(const std::vector<Vec3>& face) {
  Vec3 sum{};
  for (std::size_t i = 1; i + 1 < face.size(); ++i) sum = sum + across(face[0], face[i], face[i + 1]);
  return length(sum) / 2;
}

// Every triangle looks where the face looks, and together they cover it once.
void expectCovered(const std::vector<Vec3>& face, double area) {
  EXPECT_NEAR(areaOf(face), area, 1e-9);
  const auto triangles = trianglesOf(face);
  ASSERT_TRUE(triangles);
  EXPECT_FALSE(triangles->isGuess);
  EXPECT_NEAR(areaOf(face, *triangles), area, 1e-9);
  Vec3 direction{};
  for (const auto& [a, b, c] : triangles->corners) direction = direction + across(face[a], face[b], face[c]);
  EXPECT_NEAR(length(direction) / 2, area, 1e-9);
}

// The face in the plane z = 0, lifted so that no axis lies in it, and both ways round.
void expectCoveredAnyWay(const std::vector<Vec3>& flat, double area) {
  expectCovered(flat, area);
  expectCovered({flat.rbegin(), flat.rend()}, area);
  const Matrix3 turned = rotation({0.7, 0.4, 0.3}, RotationOrder::HPB);
  std::vector<Vec3> lifted;
  for (const Vec3& corner : flat) lifted.push_back(turned * corner + Vec3{3, -2, 5});
  expectCovered(lifted, area);
}

TEST(Triangles, OfASquareAreTwo) {
  expectCoveredAnyWay({{0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {1, 0, 0}}, 1);
  EXPECT_EQ(trianglesOf({{0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {1, 0, 0}})->corners.size(), 2U);
}

TEST(Triangles, OfAConcaveFaceStayInsideOfIt) {
  expectCoveredAnyWay({{0, 0, 0}, {2, 1, 0}, {0, 2, 0}, {1, 1, 0}}, 1);
  expectCoveredAnyWay({{0, 0, 0}, {3, 0, 0}, {3, 1, 0}, {1, 1, 0}, {1, 2, 0}, {3, 2, 0}, {3, 3, 0}, {0, 3, 0}}, 7);
}

TEST(Triangles, OfACombAndAStarCoverThem) {
  std::vector<Vec3> comb = {{0, -1, 0}};
  for (int tooth = 0; tooth < 40; ++tooth) comb.insert(comb.end(), {{tooth * 1.0, 0, 0}, {tooth + 0.5, 1, 0}});
  comb.insert(comb.end(), {{40, 0, 0}, {40, -1, 0}});
  expectCoveredAnyWay(comb, 40 + 20);
  std::vector<Vec3> star;
  for (int i = 0; i < 100; ++i) {
    const double out = i % 2 == 0 ? 1 : 0.25;
    star.push_back({out * std::cos(i * 3.14159265358979 / 50), out * std::sin(i * 3.14159265358979 / 50), 0});
  }
  expectCoveredAnyWay(star, areaOf(star));
}

TEST(Triangles, KeepCornersThatLieOnAnEdge) {
  const std::vector<Vec3> face = {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {2, 2, 0}, {1, 2, 0}, {0, 2, 0}, {0, 1, 0}};
  expectCoveredAnyWay(face, 4);
  std::vector<bool> isUsed(face.size(), false);
  const auto triangles = trianglesOf(face);
  for (const auto& triangle : triangles->corners) {
    for (const std::size_t corner : triangle) isUsed[corner] = true;
  }
  EXPECT_EQ(std::count(isUsed.begin(), isUsed.end(), true), 7);
}

// The face runs along a seam to the hole, round it and back.
TEST(Triangles, LeaveAHoleOpen) {
  expectCoveredAnyWay(
      {{0, 0, 0}, {3, 0, 0}, {3, 3, 0}, {0, 3, 0}, {0, 0, 0}, {1, 1, 0}, {1, 2, 0}, {2, 2, 0}, {2, 1, 0}, {1, 1, 0}}, 8);
}

TEST(Triangles, TakeCornersThatAreThereTwice) {
  expectCoveredAnyWay({{0, 0, 0}, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {1, 1, 0}, {0, 1, 0}}, 1);
}

TEST(Triangles, OfABentFaceShareItsEdges) {
  const std::vector<Vec3> bent = {{0, 0, 0}, {1, 0, 0.05}, {1, 1, 0}, {0.4, 0.6, 0.02}, {0, 1, 0.05}};
  const auto triangles = trianglesOf(bent);
  ASSERT_TRUE(triangles);
  EXPECT_FALSE(triangles->isGuess);
  EXPECT_EQ(triangles->corners.size(), 3U);
}

TEST(Triangles, OfSmallAndFarAndHugeFacesAreRight) {
  for (const double size : {1e-6, 1e6, 1e15}) {
    const std::vector<Vec3> face = {{0, 0, 0}, {2 * size, size, 0}, {0, 2 * size, 0}, {size, size, 0}};
    const auto triangles = trianglesOf(face);
    ASSERT_TRUE(triangles) << size;
    EXPECT_NEAR(areaOf(face, *triangles) / (size * size), 1, 1e-9) << size;
  }
}

TEST(Triangles, ThereAreNoneOfAFaceWithoutArea) {
  EXPECT_FALSE(trianglesOf({}));
  EXPECT_FALSE(trianglesOf({{1, 2, 3}}));
  EXPECT_FALSE(trianglesOf({{1, 2, 3}, {1, 2, 3}, {1, 2, 3}}));
  EXPECT_FALSE(trianglesOf({{0, 0, 0}, {1, 1, 1}, {2, 2, 2}, {3, 3, 3}}));
}

TEST(Triangles, OfAFaceThatCrossesItselfAreAGuess) {
  const auto triangles = trianglesOf({{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {3, -1, 0}, {0, 4, 0}});
  ASSERT_TRUE(triangles);
  EXPECT_TRUE(triangles->isGuess);
  EXPECT_FALSE(triangles->corners.empty());
}

TEST(Triangles, OfTheLargestFaceThereCanBeAreMadeAtOnce) {
  std::vector<Vec3> spiral;
  for (int i = 0; i < 511; ++i) spiral.push_back({i * std::cos(i * 0.1), i * std::sin(i * 0.1), 0});
  for (int i = 511; i-- > 0;) spiral.push_back({(i + 10) * std::cos(i * 0.1), (i + 10) * std::sin(i * 0.1), 0});
  const auto triangles = trianglesOf(spiral);
  ASSERT_TRUE(triangles);
  EXPECT_FALSE(triangles->isGuess);
  EXPECT_NEAR(areaOf(spiral, *triangles) / areaOf(spiral), 1, 1e-9);
}

}  // namespace
}  // namespace standin::gltf

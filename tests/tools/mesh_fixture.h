// A small object in the stand-in Modeler, and the module's mesh layer acquired from it: what the tools stand on, without
// tools.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/lwtool2_errors.h"
#include "host/lwtool2_globals.h"
#include "host/lwtool2_mesh.h"
#include "objectfile/rig_builder.h"
#include "skelegon/slots.h"
#include "standin/modeler/modeler_host.h"

namespace varnel::test {

using Names = std::vector<std::string>;

// Layer 0 "Body": a face, then Hips, Chest and Head end to end, a weight map "Head". Layer 1 without a name: Tail and a
// skelegon without a name tag. Layer 0 is the foreground, layer 1 too.
inline standin::ObjectFile smallRig() {
  standin::RigBuilder rig;
  rig.layer(0, "Body");
  rig.face({rig.point({0, 0, 0}), rig.point({1, 0, 0}), rig.point({0, 1, 0})}, "Skin");
  rig.weightMap("Head", {{0, 1.0F}});
  rig.chain({"Hips", "Chest", "Head"}, {{0, 0, 0}, {0, 1, 0}, {0, 2, 0}, {0, 3, 0}});
  rig.layer(1, "");
  rig.root("Tail", {0, 0, 5}, {0, 0, 6});
  rig.between(rig.point({1, 0, 5}), rig.point({1, 0, 6}), std::nullopt);
  return rig.take();
}

// Modeler with the object open in its foreground layers 0 and 1, its services acquired as an activation does.
class Mesh {
 public:
  explicit Mesh(standin::ObjectFile file = smallRig()) : object(&host.add(std::move(file), "rig.lwo")) {
    const standin::ActivationRecord local("");
    EXPECT_TRUE(lw::AcquireHostGlobals(lw::Program::Modeler, standin::Globals::lookup(), local.get()));
    lw::modelerFunctions() = lw::ModelerFunctions{};
    lw::AcquireModelerFunctions(lw::modelerFunctions(), standin::Globals::lookup(), local.get());
    host.showLayers({0, 1});
    host.forgetRecords();
  }

  lw::PolygonId id(std::string_view name) const { return object->skelegon(name)->id; }
  lw::PolygonIds ids(const Names& names) const {
    lw::PolygonIds list;
    for (const std::string& name : names) list.push_back(id(name));
    return list;
  }
  lw::PolygonId face() const { return object->polygons().front().id; }
  lw::PolygonId unnamed() const { return object->skelegons().back()->id; }

  // The names of polygons: "(none)" for a skelegon without one, "(face)" for what is no skelegon.
  Names namesOf(const lw::PolygonIds& polygons) const {
    Names names;
    for (const lw::PolygonId polygon : polygons) {
      const standin::MeshPolygon& found = object->polygon(polygon);
      names.push_back(!found.isSkelegon() ? "(face)" : storedTag(polygon, lw::kTagBone).value_or("(none)"));
    }
    return names;
  }

  std::optional<std::string> storedTag(lw::PolygonId polygon, std::uint32_t type) const {
    const std::string* const text = object->polygon(polygon).content.tag(type);
    return text == nullptr ? std::nullopt : std::optional<std::string>(*text);
  }
  std::optional<std::string> storedTag(std::string_view name, std::uint32_t type) const { return storedTag(id(name), type); }

  void setTag(std::string_view name, std::uint32_t type, std::optional<std::string> text) {
    object->setTag(object->polygon(id(name)), type, std::move(text));
  }
  void markDeleted(std::string_view name) { object->markDeleted(object->polygon(id(name))); }

  standin::ModelerHost host;
  standin::ModelerObject* object;
};

// Every edit that was begun has been ended, and the module did nothing wrong.
inline void expectCleanEnd(const Mesh& mesh) {
  EXPECT_EQ(standin::witness().report(), "");
  for (const standin::EditRecord& edit : mesh.host.edits()) EXPECT_TRUE(edit.done) << "mode " << edit.mode;
}

class MeshTest : public testing::Test {
 protected:
  void TearDown() override { expectCleanEnd(mesh); }

  const standin::EditRecord& onlyEdit() const {
    EXPECT_EQ(mesh.host.edits().size(), 1U);
    return mesh.host.edits().front();
  }

  Mesh mesh;
};

// What an action throws: the message of a CBaseEx, "bad_alloc", or nothing.
inline std::string thrownBy(const std::function<void()>& action) {
  try {
    action();
  } catch (const lw::ex::CBaseEx& failure) {
    return failure.message();
  } catch (const std::bad_alloc&) {
    return "bad_alloc";
  }
  return "";
}

// What is done to a fresh mesh while a host call fails. `prepare` runs before, while nothing fails.
using MeshAction = std::function<void(Mesh&)>;

// Runs the action while the n-th host call fails. Gives what it threw.
inline std::string refuseCall(Mesh& mesh, std::uint64_t n, const MeshAction& action, const MeshAction& prepare) {
  if (prepare) prepare(mesh);
  standin::witness().refuseCall(n);
  std::string thrown = thrownBy([&] { action(mesh); });
  expectCleanEnd(mesh);
  return thrown;
}

// Lets the first call of that host function fail; the mesh is left for a look.
struct Refused {
  std::unique_ptr<Mesh> mesh;
  std::string thrown;
};
inline Refused refuseFirst(const std::string& function, const MeshAction& action, const MeshAction& prepare = {}) {
  Refused result;
  for (std::uint64_t call = 1;; ++call) {
    result.mesh.reset();  // one Modeler at a time
    result.mesh = std::make_unique<Mesh>();
    result.thrown = refuseCall(*result.mesh, call, action, prepare);
    const bool happened = standin::witness().refusalHappened();
    if (!happened) ADD_FAILURE() << function << " is not called";
    if (!happened || standin::witness().refusedFunction() == function) return result;
  }
}

// Fails the first, the second, ... host call of an action, each time on a mesh of its own, until all were failed once.
// `after` looks at each mesh. Gives the number of calls.
inline std::size_t refuseEach(const MeshAction& action, const MeshAction& after = {}, const MeshAction& prepare = {}) {
  for (std::uint64_t call = 1;; ++call) {
    Mesh mesh;
    SCOPED_TRACE("call " + std::to_string(call));
    refuseCall(mesh, call, action, prepare);
    if (!standin::witness().refusalHappened()) return call - 1;
    SCOPED_TRACE(standin::witness().refusedFunction());
    if (after) after(mesh);
  }
}

}  // namespace varnel::test

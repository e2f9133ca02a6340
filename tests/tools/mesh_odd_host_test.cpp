// The mesh layer where polygons are damaged, or the host's records are.
#include "modeler/shared/skelegon_scan.h"
#include "tests/tools/mesh_fixture.h"

namespace varnel::test {
namespace {

constexpr lw::ReportSource kSource = {"mesh_odd_host_test", 1};

// "Whole" and "Stump", which has one point only.
standin::ObjectFile stumpRig() {
  standin::RigBuilder rig;
  rig.root("Whole", {0, 0, 0}, {0, 1, 0});
  rig.root("Stump", {1, 0, 0}, {1, 1, 0});
  standin::ObjectFile file = rig.take();
  file.layers[0].group(lw::kTypeBone).polygons[1].points.resize(1);
  return file;
}

TEST(DamagedSkelegon, HasNoEndsButIsListed) {
  const Mesh mesh(stumpRig());
  const std::vector<skg::SkelegonInfo> found = lw::ScanSkelegons(lw::kLayersForeground, kSource, {});
  ASSERT_EQ(found.size(), 2U);
  EXPECT_NE(found[0].tail, nullptr);
  EXPECT_EQ(found[1].name, "Stump");
  EXPECT_EQ(found[1].head, nullptr);
  EXPECT_EQ(found[1].tail, nullptr);
  expectCleanEnd(mesh);
}

// Further points of a skelegon are none of its ends.
TEST(SkelegonOfThreePoints, HasItsFirstTwoForEnds) {
  standin::RigBuilder rig;
  rig.root("Bent", {0, 0, 0}, {0, 1, 0});
  rig.point({0, 2, 0});
  standin::ObjectFile file = rig.take();
  file.layers[0].group(lw::kTypeBone).polygons[0].points.push_back(2);
  const Mesh mesh(std::move(file));
  const std::vector<skg::SkelegonInfo> found = lw::ScanSkelegons(lw::kLayersForeground, kSource, {});
  ASSERT_EQ(found.size(), 1U);
  lw::CMeshEdit edit(lw::kEditForTags);
  const skg::SkelegonList list = mst::BuildSkelegonList(edit.host(), mesh.ids({"Bent"}));
  edit.done();
  EXPECT_EQ(list.all().front()->tailPos, (skg::Position{0, 1, 0}));
  EXPECT_EQ(found[0].head, list.all().front()->headPoint);
  EXPECT_EQ(found[0].tail, list.all().front()->tailPoint);
  EXPECT_NE(found[0].tail, nullptr);
  expectCleanEnd(mesh);
}

// An edit as the host gave it, with single functions in their place.
class OddEdit {
 public:
  explicit OddEdit(Mesh& mesh) : local_("") {
    static lw::EditBeginFunc begin;
    begin = local_.get()->editBegin2;
    local_.get()->editBegin2 = [](int a, int b, int c, int mode) {
      lw::MeshEditOp* const edit = begin(a, b, c, mode);
      if (edit == nullptr) return edit;
      host = *edit;
      copy = *edit;
      if (polyInfo != nullptr) copy.polyInfo = polyInfo;
      if (polSelect != nullptr) copy.polSelect = polSelect;
      return &copy;
    };
    EXPECT_TRUE(lw::AcquireHostGlobals(lw::Program::Modeler, standin::Globals::lookup(), local_.get()));
    mesh.host.forgetRecords();
  }
  ~OddEdit() {
    polyInfo = nullptr;
    polSelect = nullptr;
  }
  OddEdit(const OddEdit&) = delete;
  OddEdit& operator=(const OddEdit&) = delete;

  static inline lw::MeshEditOp host;
  static inline lw::MeshEditOp copy;
  static inline decltype(lw::MeshEditOp::polyInfo) polyInfo = nullptr;
  static inline decltype(lw::MeshEditOp::polSelect) polSelect = nullptr;

 private:
  standin::ActivationRecord local_;
};

// A host that has a name for every number.
TEST(OddLayers, OfWhichThereAreNoneHaveTheNameOfTheirNumber) {
  Mesh mesh;
  lw::LWObjectFuncs odd = lw::sceneObjects();
  odd.layerName = [](int, int) { return "Ghost"; };
  standin::globals().offer("Scene Objects 9", &odd);
  const standin::ActivationRecord local("");
  ASSERT_TRUE(lw::AcquireHostGlobals(lw::Program::Modeler, standin::Globals::lookup(), local.get()));
  EXPECT_EQ(lw::LayerName(0), "Ghost");
  EXPECT_EQ(lw::LayerName(7), "Layer8");
}

TEST(OddRecord, WithoutAListOfPointsHasNoEnds) {
  Mesh mesh;
  const OddEdit odd(mesh);
  OddEdit::polyInfo = [](lw::EditId state, lw::PolygonId polygon) -> lw::EDPolygonInfo* {
    static lw::EDPolygonInfo record;
    record = *OddEdit::host.polyInfo(state, polygon);
    record.points = nullptr;
    return &record;
  };
  const std::vector<skg::SkelegonInfo> found = lw::ScanSkelegons(lw::kLayersForeground, kSource, {});
  ASSERT_EQ(found.size(), 5U);
  for (const skg::SkelegonInfo& skelegon : found) EXPECT_EQ(skelegon.head, nullptr) << skelegon.name;
  expectCleanEnd(mesh);
}

// A host in which what lies outside the foreground can be selected.
TEST(OddSelection, IsChangedInTheForegroundOnly) {
  static lw::PolygonIds asked;
  asked.clear();
  Mesh mesh;
  mesh.host.options().layerSwitchDeselects = false;
  mesh.host.select({"Tail"});
  mesh.host.showLayers({0});
  const OddEdit odd(mesh);
  OddEdit::polSelect = [](lw::EditId state, lw::PolygonId polygon, int on) {
    asked.push_back(polygon);
    return OddEdit::host.polSelect(state, polygon, on);
  };
  lw::SelectSkelegons(mesh.ids({"Hips", "Tail"}));
  EXPECT_EQ(mesh.namesOf(asked), Names{"Hips"});
  expectCleanEnd(mesh);
}

TEST(OddRecord, WithoutAListOfPointsStandsAloneInTheTree) {
  Mesh mesh;
  {
    lw::CMeshEdit edit(lw::kEditForTags);
    lw::MeshEditOp odd = edit.host();
    odd.polyPoints = [](lw::EditId, lw::PolygonId, const lw::PointId** points) {
      *points = nullptr;
      return 2;
    };
    const skg::SkelegonList list = mst::BuildSkelegonList(odd, mesh.ids({"Hips", "Chest"}));
    for (const skg::SkelegonNode* const node : list.all()) {
      EXPECT_EQ(node->headPoint, nullptr);
      EXPECT_EQ(node->parent, nullptr);
    }
    edit.done();
  }
  expectCleanEnd(mesh);
}

}  // namespace
}  // namespace varnel::test

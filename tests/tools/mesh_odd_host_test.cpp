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
  const std::vector<lw::SkelegonInfo> found = lw::ScanSkelegons(lw::kLayersForeground, kSource, {});
  ASSERT_EQ(found.size(), 2U);
  EXPECT_NE(found[0].tail, nullptr);
  EXPECT_EQ(found[1].name, "Stump");
  EXPECT_EQ(found[1].head, nullptr);
  EXPECT_EQ(found[1].tail, nullptr);
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
      if (edit != nullptr && polyInfo != nullptr) {
        host = *edit;
        copy = *edit;
        copy.polyInfo = polyInfo;
        return &copy;
      }
      return edit;
    };
    EXPECT_TRUE(lw::AcquireHostGlobals(lw::Program::Modeler, standin::Globals::lookup(), local_.get()));
    mesh.host.forgetRecords();
  }
  ~OddEdit() { polyInfo = nullptr; }
  OddEdit(const OddEdit&) = delete;
  OddEdit& operator=(const OddEdit&) = delete;

  static inline lw::MeshEditOp host;
  static inline lw::MeshEditOp copy;
  static inline decltype(lw::MeshEditOp::polyInfo) polyInfo = nullptr;

 private:
  standin::ActivationRecord local_;
};

TEST(OddRecord, WithoutAListOfPointsHasNoEnds) {
  Mesh mesh;
  const OddEdit odd(mesh);
  OddEdit::polyInfo = [](lw::EditId state, lw::PolygonId polygon) -> lw::EDPolygonInfo* {
    static lw::EDPolygonInfo record;
    record = *OddEdit::host.polyInfo(state, polygon);
    record.points = nullptr;
    return &record;
  };
  const std::vector<lw::SkelegonInfo> found = lw::ScanSkelegons(lw::kLayersForeground, kSource, {});
  ASSERT_EQ(found.size(), 5U);
  for (const lw::SkelegonInfo& skelegon : found) EXPECT_EQ(skelegon.head, nullptr) << skelegon.name;
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

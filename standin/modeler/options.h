// What is known of the real Modeler leaves some behaviour open. The defaults are the strict, well-behaved reading; tests
// turn single ones round to see that the module works either way.
#pragma once

#include <cstdint>

namespace standin {

// What "Scene Objects 9" answers for the file name of an object that was never saved.
enum class UnsavedFileName { Reference, Null, Empty };

struct ModelerOptions {
  std::uint32_t productInfo = 0x08F00641;  // release 15, model year 2023
  std::uint32_t localeInfo = 0x409;        // 0x411 is Japanese; 0 counts as a missing service

  // --- edits
  int refusalCode = 1;               // what a refused call of an edit answers, where it answers with a code
  bool editWithoutObject = false;    // an edit can begin while no object is loaded; its mesh is empty
  bool editsShowOwnChanges = false;  // tags and selection set in an edit can be read back before it is done
  bool selectionIsStep = true;       // a selection made by an edit is a step to undo

  // --- scans and records
  bool newestFirst = false;           // scans deliver the newest polygons first
  bool scansDeliverDeleted = false;   // scans deliver what the user has deleted too, flagged so
  bool scansRefuseQuestions = false;  // what is asked within a scan's callback is refused
  bool recordsEndAtAnyCall = false;   // a record is good until the next call of any kind, not only until the next record
  bool identifiersAreUsedAgain =
      false;  // a new polygon gets the identifier of one that is gone; set before the first object

  // --- tags
  bool emptyTagRemoves = false;    // a tag set to the empty text is removed instead of kept blank
  bool firstTagCounts = false;     // of several tags of one type on a polygon of a file the first counts, not the last
  bool missingTagIsEmpty = false;  // the text of a tag that is not there is empty, not null

  // --- layers, maps, objects
  bool unnamedLayerIsEmpty = false;  // the name of a layer without one is empty, not null
  bool layerSwitchDeselects = true;  // what lies in a layer that leaves the foreground is deselected
  bool unnamedMapIsEmpty = false;    // the name of a vertex map without one is empty, not null
  bool mapsAreTheObjects = false;    // only the vertex maps of the current object are listed
  bool otherMapsBearNames = false;   // there are vertex maps of other types too, named like the skelegons
  bool objectsAreUnsaved = false;    // objects have never been saved, whatever they were opened from
  UnsavedFileName unsavedFileName = UnsavedFileName::Reference;

  bool operator==(const ModelerOptions&) const = default;
};

}  // namespace standin

// The stand-in Modeler's main window for a person: the object's layers and polygons, the module's tools, undo and save.
//
// It shows what the host holds: refresh() after each round of messages brings it up to date, whoever changed the object.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "standin/modeler/modeler_host.h"
#include "standin/windows/front.h"
#include "standin/windows/system.h"

namespace standin {

// Its controls.
enum class DeskPart { Layers, Polygons, Undo, Redo, Save, SaveAs, Status };

class DeskWindow {
 public:
  // Shows the host's current object, if there is one, and the module's Modeler tools. All three must outlive it.
  DeskWindow(ModelerHost& host, ModuleFile& module, WindowsFront& front);
  ~DeskWindow();
  DeskWindow(const DeskWindow&) = delete;
  DeskWindow& operator=(const DeskWindow&) = delete;

  HWND handle() const { return handle_; }
  HWND part(DeskPart part) const;
  // The button that starts a tool; null when there is none of that name.
  HWND toolButton(std::string_view server) const;
  // True once the person has closed it.
  bool isOver() const { return isOver_; }
  // Brings the lists up to date.
  void refresh();
  bool isChanged() const;

  // How the person is asked; message boxes and the system's file window by default. `answers` takes what MessageBox takes
  // and gives what it gives; an empty path is a refusal.
  std::function<int(const std::string& text, UINT kind)> ask;
  std::function<std::string()> askPath;

 private:
  struct Row {
    const MeshPolygon* polygon;
    std::string text;
    bool operator==(const Row&) const = default;
  };

  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wide, LPARAM place);
  std::optional<LRESULT> received(UINT message, WPARAM wide, LPARAM place);
  HWND make(const wchar_t* windowClass, const std::string& text, DWORD style, const RECT& place, int id) const;
  void makeParts();
  void makeTools();
  void command(int id, int code);
  void runTool(const std::string& server);
  void layersTicked();
  void polygonsPicked();
  bool save(bool underNewName);
  void close();
  void draw(const DRAWITEMSTRUCT& item) const;
  void say(const std::string& text);
  Answer answered(const Message& message) const;

  const std::vector<MeshLayer>& layers() const;
  std::vector<Row> foregroundRows() const;
  void refreshLayers();
  void refreshPolygons();
  std::string written() const;

  ModelerHost& host_;
  ModuleFile& module_;
  WindowsFront& front_;
  HWND handle_ = nullptr;
  std::vector<std::string> tools_;
  std::vector<std::string> layerTexts_;
  std::vector<Row> rows_;
  std::string saved_;  // the object's bytes when it was opened or saved last
  std::string status_;
  std::size_t refusalsSaid_ = 0;
  std::size_t faultsSaid_ = 0;
  bool isOver_ = false;
};

}  // namespace standin

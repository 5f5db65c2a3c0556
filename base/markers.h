// Marker files: who works on a file.
//
// A file in use has a marker beside it, named as the file with a '~' behind
// it, that holds the user's name as plain text with no line end. Nothing is
// locked: two users racing for one marker are not told apart, and whoever
// wrote last is seen as the owner.
#pragma once

#include <string>
#include <vector>

// Marker states of a file.
enum : int {
  kMarkerFree = 0,       // nobody holds the file
  kMarkerMine = 1,       // the user holds it
  kMarkerSomeoneElse = 2 // another user holds it
};

// The name of the effective user as a temporary text; empty when unknown.
const char* sUserName();
// `path` with a '~' behind it, as a temporary text.
const char* sMarkerFileName(const char* path);
// The name in the marker `markerPath` (at most 99 bytes) as a temporary text;
// empty when the marker cannot be opened or read.
const char* sMarkerRead(const char* markerPath);
// Writes `text` to the marker `markerPath`, making its missing folders. false
// when a name along the path is not valid, the marker cannot be made, or
// nothing was written.
bool boMarkerWrite(const char* markerPath, const char* text);

// The marker state of `path`; the name in its marker goes to *outOwner when
// given.
int iMarkerState(const char* path, std::string* outOwner);
// take true: takes the marker of a free file (true when written), keeps one
// that the user holds (true), refuses one that someone else holds (false).
// take false: gives up the user's marker (true when it is gone); false in
// any other state, and nothing is deleted.
bool boMarkerSet(const char* path, bool take);
// boMarkerSet on each path; the paths for which it succeeded, in order.
std::vector<std::string> MarkerSetList(const std::vector<std::string>& paths, bool take);
// Moves the file `from`, which the user must hold, to `to`, which nobody else
// may hold, and its marker with it.
bool boFileMoveMarked(const char* from, const char* to);
// Deletes the file `path`, which the user must hold, and gives up its marker.
bool boFileDeleteMarked(const char* path);

// The mark that a list of files shows for a state: "#" for a free file,
// "#(<owner>) " for one held by someone else, "" otherwise.
std::string sMarkerPrefix(int state, const char* owner);

// A host that keeps its own record of who works on which file sets these.
// Each operation above with a hook set hands its call to the hook and does
// nothing else. All are null at start; they are set at start-up.
struct MarkerHooks {
  int (*pfnState)(const char* path, std::string* outOwner);
  bool (*pfnSet)(const char* path, bool take);
  std::vector<std::string> (*pfnSetList)(const std::vector<std::string>& paths, bool take);
  bool (*pfnMove)(const char* from, const char* to);
  bool (*pfnDelete)(const char* path);
};
extern MarkerHooks pfnMarkerHooks;

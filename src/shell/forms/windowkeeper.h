#pragma once

class FaceWindow;
class QString;

// Shows the window where the last run left it, as the file keeps it: its place and size
// within the screens as they are now, maximised if it was. Without a place kept, the window
// shows where it stands.
void showWindowAsLeft(FaceWindow& window, const QString& placeFile);

// Keeps the window's place, size and maximised state in the file for the next run.
void keepWindowPlace(const FaceWindow& window, const QString& placeFile);

// Pictures of pages and of what they can show.
#pragma once

class GalleryFrame;
struct CommandLine;

/// Takes the pictures that the command line asks for. False when a file cannot be written or a pose is unknown.
bool takePictures(GalleryFrame& frame, const CommandLine& line);

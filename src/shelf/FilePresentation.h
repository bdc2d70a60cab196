#pragma once

namespace tembra {

class FileFactsReader;
class FileThumbnailCache;
class Thumbnails;

// What is needed to show files as tiles. The services outlive every view that is given them.
struct FilePresentation {
    Thumbnails &thumbnails;
    const FileFactsReader &files;
    FileThumbnailCache &cache;
};

} // namespace tembra

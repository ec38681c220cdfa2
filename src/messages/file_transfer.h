#pragma once

#include "foundation/base/const_data.h"
#include "foundation/files/file_location.h"

class XMLElement;

// One support file as it travels inside a message: its name, the sub-folder it belongs to, and its bytes in base64
// (RFC 4648), possibly broken into lines. A value.
class FileTransfer {
  public:
    FileTransfer() = default;
    FileTransfer(FileName const& name, FileName const& subFolder, Stringy base64Content);
    // Takes the content from the file. Throws what reading it throws (file_errors.h).
    FileTransfer(FileLocation const& file, FileName const& name, FileName const& subFolder);

    FileName const& Name() const { return name_; }
    FileName const& SubFolder() const { return sub_folder_; }
    Stringy const& Content() const { return content_; }
    // Whether the file belongs directly into the base directory; only such files are looked up by name.
    bool IsTopLevel() const;

    // Creates or overwrites the file with the decoded content. Bytes outside the base64 alphabet, line breaks and
    // padding among them, are skipped: no content is ever refused. Throws what writing throws (file_errors.h).
    void WriteToFile(FileLocation const& file) const;
    // Replaces the content by that of the file. Throws what reading it throws.
    void ReadFromFile(FileLocation const& file);

    friend void XMLLoad(XMLElement const& element, FileTransfer& file);

  private:
    FileName name_;
    FileName sub_folder_;
    Stringy content_;
};

// Reads "FileName", "SubFolder" and "Content". The names are stored as they stand, unchecked.
void XMLLoad(XMLElement const& element, FileTransfer& file);

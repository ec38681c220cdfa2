#include "messages/file_transfer.h"

#include <utility>
#include <vector>

#include "foundation/files/file_access.h"
#include "foundation/text/base64.h"
#include "xml/serialize.h"

FileTransfer::FileTransfer(FileName const& name, FileName const& subFolder, Stringy base64Content)
    : name_(name), sub_folder_(subFolder), content_(std::move(base64Content)) {}

FileTransfer::FileTransfer(FileLocation const& file, FileName const& name, FileName const& subFolder)
    : FileTransfer(name, subFolder, {}) {
    ReadFromFile(file);
}

bool FileTransfer::IsTopLevel() const {
    return sub_folder_.IsEmpty();
}

void FileTransfer::WriteToFile(FileLocation const& file) const {
    FileWritingPath path(file);
    FileWriter(path).Write(DecodeBase64(content_));
    path.Close();
}

void FileTransfer::ReadFromFile(FileLocation const& file) {
    FileReadingPath path(file);
    std::vector<unsigned char> bytes(path.Length());
    FileReader(path).Read(bytes);
    content_ = EncodeBase64({bytes.data(), bytes.data() + bytes.size()});
}

void XMLLoad(XMLElement const& element, FileTransfer& file) {
    XMLLoad(element, "FileName", file.name_);
    XMLLoad(element, "SubFolder", file.sub_folder_);
    XMLLoad(element, "Content", file.content_);
}

// draw_pictures FOLDER: draws pictures for tools/pictures, which compares them with what others
// draw.
//
// Reads a path a line on standard input and answers each by a line on standard output:
//   none                                                  it is no picture
//   picture WIDTH HEIGHT, and for each of two drawings: WIDTH HEIGHT BLANK SECONDS KILOBYTES
//   died SIGNAL
// The first drawing is at the picture's own size, or when that is more than a megapixel at the
// largest whole fraction below; the second is at one within 128 by 128. Their pixels are written to
// 0 and 1 in FOLDER, as premultiplied RGBA. Seconds are of the processor, and kilobytes what memory
// has grown by at most.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <algorithm>
#include <cmath>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>

#include "platform/qt/PicturePixels.h"
#include "tests/support/ProcessMemory.h"
#include "tests/support/ProcessorTime.h"

namespace leafund {
namespace {

constexpr unsigned kPatience = 120;  // seconds, after which a drawing has not come to an end

// The size at which so many pixels, each way, become one: filters agree best on whole numbers.
QSize fraction(CGSize own, double pixels) {
  const double whole = std::max(1.0, std::ceil(pixels));
  const auto side = [whole](double length) { return static_cast<int>(std::ceil(length / whole)); };
  return {side(own.width), side(own.height)};
}

void write(const std::string& path, const QImage& image) {
  const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888_Premultiplied);
  QFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::WriteOnly)) return;
  file.write(reinterpret_cast<const char*>(pixels.constBits()), pixels.sizeInBytes());
}

std::string drawn(const std::string& path, const std::string& folder) {
  std::ifstream file(path, std::ios::binary);
  const auto body = std::make_shared<const std::string>(std::istreambuf_iterator<char>(file),
                                                        std::istreambuf_iterator<char>());
  const auto picture = UIImage::initWithData(body);
  if (!picture) return "none";
  const CGSize own = picture->size();
  std::ostringstream line;
  line << "picture " << own.width << ' ' << own.height;
  const long before = kilobytes("VmRSS");
  const QSize sizes[] = {fraction(own, std::sqrt(own.width * own.height / 1'048'576)),
                         fraction(own, std::max(own.width, own.height) / 128)};
  for (int which = 0; which < 2; ++which) {
    const QSize size = sizes[which];
    const double start = processorSeconds();
    const QImage image = picturePixels(*picture, size, UIViewContentMode::ScaleToFill);
    const double seconds = processorSeconds() - start;
    const long most = kilobytes("VmHWM") - before;
    write(folder + '/' + std::to_string(which), image);
    line << ' ' << size.width() << ' ' << size.height() << ' ' << image.isNull() << ' ' << seconds
         << ' ' << most;
  }
  return line.str();
}

// In a process of its own, which a picture may bring down.
std::string answer(const std::string& path, const std::string& folder) {
  int ends[2];
  if (pipe(ends) != 0) return "died 0";
  const pid_t child = fork();
  if (child == 0) {
    const rlimit seconds{kPatience / 2, kPatience / 2};
    setrlimit(RLIMIT_CPU, &seconds);
    alarm(kPatience);
    const std::string line = drawn(path, folder);
    const bool isTold = ::write(ends[1], line.data(), line.size()) >= 0;
    _exit(isTold ? 0 : 1);
  }
  close(ends[1]);
  char line[512];
  const ssize_t length = read(ends[0], line, sizeof line);
  close(ends[0]);
  int status = 0;
  waitpid(child, &status, 0);
  if (status == 0 && length > 0) return {line, static_cast<std::size_t>(length)};
  return "died " + std::to_string(WIFSIGNALED(status) ? WTERMSIG(status) : 0);
}

}  // namespace
}  // namespace leafund

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: draw_pictures FOLDER <PATHS\n";
    return 2;
  }
  const QCoreApplication application(argc, argv);  // Qt finds its decoders beside one
  for (std::string path; std::getline(std::cin, path);) {
    std::cout << leafund::answer(path, argv[1]) << std::endl;
  }
}

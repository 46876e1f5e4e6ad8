// A stand-in for the model, the converter and the reformatter in tests. Started with no
// arguments in the program folder, it reads the control file that belongs to its own name, then
// follows the orders of "stand_in_orders.txt" in the same folder, one order a line:
//   lines EXT N        writes BASE.EXT with N lines
//   copy EXT SOURCE    copies the file SOURCE to BASE.EXT
//   wait-for PATH      waits until PATH exists (at most one minute)
//   crash              ends at once, killed by a signal
//   exit N             ends at once with the exit status N
//   spawn-child FIFO   starts a child that opens the named pipe FIFO for writing, writes its
//                      process number into it and lives on, holding it open, for at most one
//                      minute; so the pipe's reader sees its end when the child is gone
// BASE is the data file of the control file without its extension. The control file's first
// line is kept in "stand_in_seen.txt", so a test sees which file the program was given.
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

std::string controlFileFor(const std::string& program) {
    if (program.find("Converter") != std::string::npos)
        return "flumeConv.fil";
    if (program.find("HECRAS") != std::string::npos)
        return "flume_HECRAS.fil";
    return "flume.fil";
}

std::string firstLine(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::string line;
    std::getline(in, line);
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return line;
}

// The child of "spawn-child": it outlives its parent unless something ends it.
void liveOnHolding(const std::string& fifo) {
    const int pipe = ::open(fifo.c_str(), O_WRONLY);
    if (pipe < 0)
        ::_exit(1);
    const std::string pid = std::to_string(::getpid()) + "\n";
    if (::write(pipe, pid.data(), pid.size()) < 0)
        ::_exit(1);
    std::this_thread::sleep_for(std::chrono::minutes(1));
    ::_exit(0);
}

} // namespace

int main(int, char** argv) {
    const std::string dataFile = firstLine(controlFileFor(fs::path(argv[0]).filename().string()));
    std::ofstream("stand_in_seen.txt", std::ios::binary) << dataFile << "\r\n";
    const auto point = dataFile.rfind('.');
    const std::string base = point == std::string::npos ? dataFile + "." : dataFile.substr(0, point + 1);

    std::ifstream orders("stand_in_orders.txt");
    std::string order;
    while (std::getline(orders, order)) {
        if (!order.empty() && order.back() == '\r')
            order.pop_back();
        std::istringstream words(order);
        std::string verb, argument;
        words >> verb;
        if (verb == "crash")
            std::raise(SIGKILL);
        if (verb == "exit") {
            int status = 0;
            words >> status;
            return status;
        }
        if (verb == "spawn-child") {
            std::getline(words >> std::ws, argument);
            if (::fork() == 0)
                liveOnHolding(argument);
            continue;
        }
        if (verb == "wait-for") {
            std::getline(words >> std::ws, argument);
            for (int i = 0; i < 6000 && !fs::exists(argument); ++i)
                std::this_thread::sleep_for(std::chrono::milliseconds(10));
            continue;
        }
        words >> argument;
        if (verb == "lines") {
            int count = 0;
            words >> count;
            std::ofstream out(base + argument, std::ios::binary);
            for (int i = 1; i <= count; ++i)
                out << "RESULT LINE " << i << "\r\n";
        } else if (verb == "copy") {
            std::string source;
            std::getline(words >> std::ws, source);
            fs::copy_file(source, base + argument, fs::copy_options::overwrite_existing);
        }
    }
    return 3; // an exit code the program must not care about
}

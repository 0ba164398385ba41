// A program that follows the orders in the file "<own path>.script", one a line:
//
//     line TEXT     writes the text and a line end
//     lines N       writes the numbers from 1 to N, one a line
//     bytes N       writes a line of N letters x
//     raw HEX       writes the bytes
//     error TEXT    writes the text and a line end to standard error
//     arguments     writes its arguments, one a line
//     record        writes them to the file "<own path>.arguments"
//     folder        writes its working folder
//     mark PATH     creates an empty file
//     hold PATH     creates an empty file and keeps it open
//     start PATH    starts another program and does not wait for it
//     forget        deletes the file of orders, so that the next start finds none
//     read          reads its standard input to the end
//     sleep MS      sleeps for this number of milliseconds
//     wait PATH     waits until the file has been deleted
//     only-for TEXT exits with 0 unless one of its arguments contains the text
//     exit CODE     exits with that code
//     crash         aborts

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <thread>

namespace {

void writeLines(int count)
{
    for (int i = 1; i <= count; ++i)
        std::cout << i << '\n';
}

void writeRaw(const std::string &hex)
{
    for (std::size_t i = 0; i + 1 < hex.size(); i += 2)
        std::cout << static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16));
}

void sleepFor(int milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

void waitUntilDeleted(const std::string &path)
{
    while (std::filesystem::exists(path))
        sleepFor(50);
}

void hold(const std::string &path)
{
    static std::ofstream held;
    held.open(std::filesystem::path(path));
}

// The system's interpreter starts the program, and this one waits for it in a thread of its own.
void start(const std::string &path)
{
    std::thread([command = '"' + path + '"'] {
        if (std::system(command.c_str()) != 0)
            std::cerr << command << " failed\n";
    }).detach();
}

void writeArguments(std::ostream &output, int argc, char **argv)
{
    for (int i = 1; i < argc; ++i)
        output << argv[i] << '\n';
}

bool contains(const std::string &text, int argc, char **argv)
{
    return std::any_of(argv + 1, argv + argc,
                       [&](const char *argument) { return std::string(argument).find(text) != text.npos; });
}

void follow(const std::string &order, const std::string &operand, int argc, char **argv)
{
    if (order == "line")
        std::cout << operand << '\n';
    else if (order == "lines")
        writeLines(std::stoi(operand));
    else if (order == "bytes")
        std::cout << std::string(std::stoul(operand), 'x') << '\n';
    else if (order == "raw")
        writeRaw(operand);
    else if (order == "error")
        std::cerr << operand << '\n';
    else if (order == "folder")
        std::cout << std::filesystem::current_path().string() << '\n';
    else if (order == "mark")
        std::ofstream(std::filesystem::path(operand)).flush();
    else if (order == "hold")
        hold(operand);
    else if (order == "start")
        start(operand);
    else if (order == "read")
        std::cout << "read " << std::string(std::istreambuf_iterator<char>(std::cin), {}).size() << '\n';
    else if (order == "sleep")
        sleepFor(std::stoi(operand));
    else if (order == "wait")
        waitUntilDeleted(operand);
    else if (order == "arguments")
        writeArguments(std::cout, argc, argv);
    else if (order == "record") {
        std::ofstream file(std::string(*argv) + ".arguments");
        writeArguments(file, argc, argv);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const std::string scriptPath = std::string(*argv) + ".script";
    std::ifstream script(scriptPath);
    std::string line;
    std::stringstream orders;
    orders << script.rdbuf();
    script.close();
    while (std::getline(orders, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        const auto blank = line.find(' ');
        const std::string order = line.substr(0, blank);
        const std::string operand = blank == std::string::npos ? std::string() : line.substr(blank + 1);
        if (order == "exit") {
            std::cout.flush();
            return std::stoi(operand);
        }
        if (order == "only-for" && !contains(operand, argc, argv))
            return 0;
        if (order == "crash") {
            std::cout.flush();
            std::abort();
        }
        if (order == "forget")
            std::remove(scriptPath.c_str());
        follow(order, operand, argc, argv);
        std::cout.flush();
    }
    return 0;
}

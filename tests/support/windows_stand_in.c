/* A stand-in for the model, the converter and the reformatter as a Windows console program, for
   the tests that run them through Wine. Started with no arguments in the program folder, it reads
   the data file from the first line of the control file that belongs to its own name ("flume.fil",
   "flumeConv.fil" or "flume_HECRAS.fil"), then follows the orders of "stand_in_orders.txt", one
   order a line:
     lines EXT N   writes BASE.EXT with N lines
     copy EXT FILE copies FILE to BASE.EXT
     crash         ends at once by an access violation
     hang          starts a second copy of itself that waits for ever, then waits for ever
   BASE is the data file without its extension. The data file's name is kept in
   "stand_in_seen.txt", so a test sees which file the program was given. */
#include <stdio.h>
#include <string.h>
#include <windows.h>

static void trimLineEnd(char* line) {
    size_t length = strlen(line);
    while (length > 0 && (line[length - 1] == '\r' || line[length - 1] == '\n'))
        line[--length] = '\0';
}

static void waitForEver(void) {
    for (;;)
        Sleep(1000);
}

int main(int argc, char** argv) {
    if (argc > 1 && strcmp(argv[1], "child") == 0)
        waitForEver();

    char self[MAX_PATH] = "";
    GetModuleFileNameA(NULL, self, sizeof self);
    const char* controlFile = strstr(self, "Converter") ? "flumeConv.fil"
                              : strstr(self, "HECRAS")  ? "flume_HECRAS.fil"
                                                        : "flume.fil";
    char dataFile[4096] = "";
    FILE* control = fopen(controlFile, "rb");
    if (control) {
        if (!fgets(dataFile, sizeof dataFile, control))
            dataFile[0] = '\0';
        fclose(control);
    }
    trimLineEnd(dataFile);
    FILE* seen = fopen("stand_in_seen.txt", "wb");
    if (seen) {
        fprintf(seen, "%s\r\n", dataFile);
        fclose(seen);
    }

    char base[4096];
    snprintf(base, sizeof base, "%s", dataFile);
    char* point = strrchr(base, '.');
    if (point)
        point[1] = '\0';
    else
        strncat(base, ".", sizeof base - strlen(base) - 1);

    FILE* orders = fopen("stand_in_orders.txt", "rb");
    char order[256];
    while (orders && fgets(order, sizeof order, orders)) {
        trimLineEnd(order);
        char extension[16];
        int count = 0;
        if (strcmp(order, "crash") == 0) {
            volatile int* nowhere = NULL;
            *nowhere = 1;
        } else if (strcmp(order, "hang") == 0) {
            char commandLine[MAX_PATH + 16];
            snprintf(commandLine, sizeof commandLine, "\"%s\" child", self);
            STARTUPINFOA startup;
            memset(&startup, 0, sizeof startup);
            startup.cb = sizeof startup;
            PROCESS_INFORMATION process;
            if (CreateProcessA(self, commandLine, NULL, NULL, FALSE, 0, NULL, NULL, &startup, &process)) {
                FILE* started = fopen("stand_in_child.txt", "wb");
                if (started) {
                    fprintf(started, "%lu\r\n", (unsigned long)process.dwProcessId);
                    fclose(started);
                }
            }
            waitForEver();
        } else if (strncmp(order, "copy ", 5) == 0 && sscanf(order + 5, "%15s", extension) == 1) {
            const char* source = order + 5 + strlen(extension) + 1;
            char path[4200];
            snprintf(path, sizeof path, "%s%s", base, extension);
            FILE* in = fopen(source, "rb");
            FILE* out = in ? fopen(path, "wb") : NULL;
            char buffer[4096];
            size_t got;
            while (out && (got = fread(buffer, 1, sizeof buffer, in)) > 0)
                fwrite(buffer, 1, got, out);
            if (out)
                fclose(out);
            if (in)
                fclose(in);
        } else if (sscanf(order, "lines %15s %d", extension, &count) == 2) {
            char path[4200];
            snprintf(path, sizeof path, "%s%s", base, extension);
            FILE* out = fopen(path, "wb");
            for (int i = 1; out && i <= count; ++i)
                fprintf(out, "RESULT LINE %d\r\n", i);
            if (out)
                fclose(out);
        }
    }
    if (orders)
        fclose(orders);
    return 3; /* an exit code the program must not care about */
}

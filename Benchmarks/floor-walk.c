// The least a disk-usage walk must do, as a yardstick for the engine's walkers: open every
// folder, list it with getdents64, statx every entry (no following links, never leaving the
// first file system), and sum allocated blocks, hard links once. Nothing else: no names kept, no
// tree built, no output but the total.
//
// Usage: floor-walk [-j THREADS] FOLDER      (default 1 thread)
// Prints "BYTES<TAB>ENTRIES<TAB>FOLDER". Build: gcc -O2 -pthread -o floor-walk floor-walk.c
#define _GNU_SOURCE
#include <dirent.h>
#include <errno.h>
#include <fcntl.h>
#include <pthread.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

struct linux_dirent64 {
    uint64_t d_ino;
    int64_t d_off;
    unsigned short d_reclen;
    unsigned char d_type;
    char d_name[];
};

// A folder waiting to be listed: opened relative to its parent, which stays open until every
// child waiting on it has been opened.
struct folder {
    struct folder* parent;
    struct folder* next; // in the stack of waiting folders
    int fd;
    int references; // its own listing plus each waiting child; guarded by the lock
    char name[];
};

static pthread_mutex_t lock = PTHREAD_MUTEX_INITIALIZER;
static pthread_cond_t wake = PTHREAD_COND_INITIALIZER;
static struct folder* waiting; // last in, first out: keeps the open parents to one path's worth
static int busy;               // threads listing a folder right now
static uint32_t root_major, root_minor;

// Inodes with more than one name, counted once: open addressing on (device, inode).
static pthread_mutex_t seen_lock = PTHREAD_MUTEX_INITIALIZER;
static struct { uint64_t dev, ino; } * seen;
static size_t seen_capacity, seen_count;

static int first_sighting(uint64_t dev, uint64_t ino) {
    pthread_mutex_lock(&seen_lock);
    if (2 * (seen_count + 1) > seen_capacity) {
        size_t capacity = seen_capacity ? 2 * seen_capacity : 1024;
        __typeof__(seen) grown = calloc(capacity, sizeof *seen);
        if (!grown) {
            perror("calloc");
            exit(1);
        }
        for (size_t i = 0; i < seen_capacity; ++i)
            if (seen[i].ino) {
                size_t j = (seen[i].ino * 0x9e3779b97f4a7c15u ^ seen[i].dev) & (capacity - 1);
                while (grown[j].ino)
                    j = (j + 1) & (capacity - 1);
                grown[j] = seen[i];
            }
        free(seen);
        seen = grown;
        seen_capacity = capacity;
    }
    size_t j = (ino * 0x9e3779b97f4a7c15u ^ dev) & (seen_capacity - 1);
    int fresh = 1;
    while (seen[j].ino) {
        if (seen[j].ino == ino && seen[j].dev == dev) {
            fresh = 0;
            break;
        }
        j = (j + 1) & (seen_capacity - 1);
    }
    if (fresh) {
        seen[j].dev = dev;
        seen[j].ino = ino;
        ++seen_count;
    }
    pthread_mutex_unlock(&seen_lock);
    return fresh;
}

static void release(struct folder* folder) { // with the lock held
    while (folder && --folder->references == 0) {
        struct folder* parent = folder->parent;
        if (folder->fd >= 0)
            close(folder->fd);
        free(folder);
        folder = parent;
    }
}

struct totals {
    uint64_t bytes, entries;
};

static void list(struct folder* folder, char* buffer, size_t size, struct totals* totals) {
    struct folder* children = NULL;
    for (;;) {
        long got = syscall(SYS_getdents64, folder->fd, buffer, size);
        if (got <= 0) {
            if (got < 0)
                fprintf(stderr, "floor-walk: getdents64: %s\n", strerror(errno));
            break;
        }
        for (long at = 0; at < got;) {
            struct linux_dirent64* entry = (struct linux_dirent64*)(buffer + at);
            at += entry->d_reclen;
            const char* name = entry->d_name;
            if (name[0] == '.' && (!name[1] || (name[1] == '.' && !name[2])))
                continue;
            struct statx sx;
            if (statx(folder->fd, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT,
                      STATX_TYPE | STATX_NLINK | STATX_INO | STATX_BLOCKS, &sx) != 0) {
                fprintf(stderr, "floor-walk: statx %s: %s\n", name, strerror(errno));
                continue;
            }
            ++totals->entries;
            const uint64_t dev = (uint64_t)sx.stx_dev_major << 32 | sx.stx_dev_minor;
            if (!S_ISDIR(sx.stx_mode) && sx.stx_nlink > 1 && !first_sighting(dev, sx.stx_ino))
                continue;
            totals->bytes += sx.stx_blocks * 512;
            if (!S_ISDIR(sx.stx_mode) || sx.stx_dev_major != root_major || sx.stx_dev_minor != root_minor)
                continue;
            size_t length = strlen(name) + 1;
            struct folder* child = malloc(sizeof *child + length);
            if (!child) {
                perror("malloc");
                exit(1);
            }
            memcpy(child->name, name, length);
            child->parent = folder;
            child->fd = -1;
            child->references = 1;
            child->next = children;
            children = child;
        }
    }
    pthread_mutex_lock(&lock);
    int pushed = 0;
    while (children) {
        struct folder* child = children;
        children = child->next;
        child->next = waiting;
        waiting = child;
        ++folder->references;
        ++pushed;
    }
    release(folder);
    if (pushed)
        pthread_cond_broadcast(&wake);
    pthread_mutex_unlock(&lock);
}

static size_t buffer_size = 128 * 1024;

static void* worker(void* result) {
    struct totals* totals = result;
    char* buffer = malloc(buffer_size);
    if (!buffer) {
        perror("malloc");
        exit(1);
    }
    pthread_mutex_lock(&lock);
    for (;;) {
        while (!waiting && busy)
            pthread_cond_wait(&wake, &lock);
        if (!waiting)
            break; // nothing waits and nobody can add more
        struct folder* folder = waiting;
        waiting = folder->next;
        ++busy;
        pthread_mutex_unlock(&lock);

        folder->fd = openat(folder->parent->fd, folder->name,
                            O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC | O_NOCTTY);
        pthread_mutex_lock(&lock);
        release(folder->parent);
        folder->parent = NULL;
        pthread_mutex_unlock(&lock);
        if (folder->fd < 0) {
            fprintf(stderr, "floor-walk: open %s: %s\n", folder->name, strerror(errno));
            pthread_mutex_lock(&lock);
            release(folder);
        } else {
            list(folder, buffer, buffer_size, totals);
            pthread_mutex_lock(&lock);
        }
        if (--busy == 0 && !waiting)
            pthread_cond_broadcast(&wake);
    }
    pthread_mutex_unlock(&lock);
    free(buffer);
    return NULL;
}

int main(int argc, char** argv) {
    int threads = 1, option;
    while ((option = getopt(argc, argv, "j:")) != -1) {
        if (option != 'j' || (threads = atoi(optarg)) < 1) {
            fprintf(stderr, "usage: %s [-j THREADS] FOLDER\n", argv[0]);
            return 2;
        }
    }
    if (optind + 1 != argc) {
        fprintf(stderr, "usage: %s [-j THREADS] FOLDER\n", argv[0]);
        return 2;
    }
    const char* path = argv[optind];
    struct rlimit files;
    if (getrlimit(RLIMIT_NOFILE, &files) == 0 && files.rlim_cur < files.rlim_max) {
        files.rlim_cur = files.rlim_max;
        setrlimit(RLIMIT_NOFILE, &files);
    }

    // The root is a waiting folder whose parent is a stand-in holding the descriptor of the path.
    struct folder* start = calloc(1, sizeof *start + 2);
    start->fd = openat(AT_FDCWD, path, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    struct statx sx;
    if (start->fd < 0 || statx(start->fd, "", AT_EMPTY_PATH, STATX_BLOCKS, &sx) != 0) {
        fprintf(stderr, "floor-walk: %s: %s\n", path, strerror(errno));
        return 1;
    }
    root_major = sx.stx_dev_major;
    root_minor = sx.stx_dev_minor;
    start->references = 1;
    struct folder* root = calloc(1, sizeof *root + 2);
    root->parent = start;
    root->references = 1;
    strcpy(root->name, ".");
    waiting = root;

    struct totals* totals = calloc((size_t)threads, sizeof *totals);
    pthread_t* ids = calloc((size_t)threads, sizeof *ids);
    for (int i = 1; i < threads; ++i)
        if (pthread_create(&ids[i], NULL, worker, &totals[i]) != 0) {
            perror("pthread_create");
            return 1;
        }
    worker(&totals[0]);
    struct totals sum = {sx.stx_blocks * 512, 1};
    for (int i = 0; i < threads; ++i) {
        if (i)
            pthread_join(ids[i], NULL);
        sum.bytes += totals[i].bytes;
        sum.entries += totals[i].entries;
    }
    printf("%llu\t%llu\t%s\n", (unsigned long long)sum.bytes, (unsigned long long)sum.entries, path);
    return 0;
}

// Reads the parameter file of the working directory through HDF5's C interface alone, in the way in which a storage
// does: element by element, each of the first as every type. None of our code is in it. It decides whether a file on
// which the library dies, hangs or runs out of memory is one on which HDF5 itself does.
//
//   reference_reader [--fill] [--impatient] [--whole | --open | --until-crash | --until-hang] <folder>...
//
// --fill fills fresh memory, so that a use of it does not go by unseen; --impatient leaves out keys of too many values,
// as a run over many files does; --whole reads each key at once, as a program that shows a file does, and not element
// by element. The others are for a file that has both faults, of which a program meets the one that its order brings
// first. --open opens keys without reading them. With --until-crash and --until-hang each group, key and read has a
// process of its own, and only the fault that is asked for ends the whole.
//
// Want of memory must not look like a crash.
#include "hostile/limits.h"

#include <hdf5.h>

#include <malloc.h>
#include <signal.h>
#include <stdlib.h>
#include <string.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <initializer_list>
#include <new>
#include <string>
#include <vector>

namespace
{

constexpr hssize_t kReadAsEveryType = 3;
constexpr int kAttempts = 3;

// Of processor time, for a process that may hang while a crash is looked for.
constexpr unsigned kSecondsBeforeACrash = 1;

enum class Until
{
  TheFirstFault,
  Crash,
  Hang
};

struct Manner
{
  const hid_t* begin;
  const hid_t* end;  // of the types to read as
  hid_t transfer;
  bool impatient;
  bool whole;
  bool only_open;
  Until until;
};

void GiveTime(unsigned seconds)
{
  const itimerval work{{0, 0}, {static_cast<time_t>(seconds), 0}};
  setitimer(ITIMER_PROF, &work, nullptr);
}

[[noreturn]] void EndLike(int status)
{
  if (WIFSIGNALED(status))
  {
    signal(WTERMSIG(status), SIG_DFL);
    raise(WTERMSIG(status));
  }
  _exit(WEXITSTATUS(status));
}

// Calls a reader, in a process of its own where only one fault is to end this one.
template <class Reader>
void Apart(Manner manner, Reader reader)
{
  if (manner.until == Until::TheFirstFault)
  {
    reader();
    return;
  }
  const pid_t child = fork();
  if (child == 0)
  {
    GiveTime(manner.until == Until::Hang ? kHangSeconds : kSecondsBeforeACrash);
    reader();
    exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  const bool hung = WIFSIGNALED(status) && WTERMSIG(status) == SIGPROF;
  if (status != 0 && hung == (manner.until == Until::Hang))
  {
    EndLike(status);
  }
}

herr_t NoteName(hid_t, const char* name, const H5L_info_t*, void* names)
{
  try
  {
    static_cast<std::vector<std::string>*>(names)->emplace_back(name);
    return 0;
  }
  catch (const std::bad_alloc&)
  {
    return -1;
  }
}

// Those that come before a broken link, too: a storage that looks for one of them ends its walk there. A storage asks
// again for the next key, and HDF5 may answer where it failed at first.
std::vector<std::string> NamesOf(hid_t group)
{
  std::vector<std::string> names;
  herr_t result = -1;
  for (int attempt = 0; attempt < kAttempts && result < 0; ++attempt)
  {
    hsize_t start = 0;
    result = H5Literate(group, H5_INDEX_NAME, H5_ITER_INC, &start, NoteName, &names);
  }
  return names;
}

// Ids are asked for by their positions, which is another way through HDF5.
void AskForName(hid_t group, hsize_t position)
{
  const ssize_t length = H5Lget_name_by_idx(group, ".", H5_INDEX_NAME, H5_ITER_INC, position, nullptr, 0, H5P_DEFAULT);
  auto* name = length >= 0 ? static_cast<char*>(malloc(static_cast<size_t>(length) + 1)) : nullptr;
  if (name != nullptr)
  {
    H5Lget_name_by_idx(group, ".", H5_INDEX_NAME, H5_ITER_INC, position, name, static_cast<size_t>(length) + 1,
                       H5P_DEFAULT);
  }
  free(name);
}

void FollowReference(hid_t dataset, const hobj_ref_t* reference)
{
  H5O_type_t type = H5O_TYPE_UNKNOWN;
  if (H5Rget_obj_type2(dataset, H5R_OBJECT, reference, &type) < 0 || type != H5O_TYPE_GROUP)
  {
    return;
  }
  const hid_t target = H5Rdereference2(dataset, H5P_DEFAULT, H5R_OBJECT, reference);
  char name[1024];
  H5Iget_name(target, nullptr, 0);
  H5Iget_name(target, name, sizeof name);
  H5Oclose(target);
}

void ReadFrom(hid_t dataset, hid_t space, hid_t type, hid_t transfer, hsize_t position)
{
  const hsize_t one = 1;
  const hid_t memory = H5Screate_simple(1, &one, nullptr);
  H5Sselect_hyperslab(space, H5S_SELECT_SET, &position, nullptr, &one, nullptr);
  union
  {
    hvl_t sequence;
    hobj_ref_t reference;
    double number;
  } element;
  memset(&element, 0, sizeof element);
  const bool good = H5Dread(dataset, type, memory, space, transfer, &element) >= 0;
  if (H5Tget_class(type) == H5T_VLEN)
  {
    free(element.sequence.p);
  }
  else if (good && H5Tget_class(type) == H5T_REFERENCE)
  {
    FollowReference(dataset, &element.reference);
  }
  H5Sclose(memory);
}

bool HasElement(hid_t space, hsize_t position)
{
  return H5Sget_simple_extent_ndims(space) == 1 && position < static_cast<hsize_t>(H5Sget_select_npoints(space));
}

// Opens the dataset for this read alone, as a storage does: what one read leaves behind can hide a fault of the next.
void ReadElement(hid_t group, const char* name, hid_t type, hid_t transfer, hsize_t position)
{
  const hid_t dataset = H5Dopen2(group, name, H5P_DEFAULT);
  const hid_t space = H5Dget_space(dataset);
  if (HasElement(space, position))
  {
    ReadFrom(dataset, space, type, transfer, position);
  }
  H5Sclose(space);
  H5Dclose(dataset);
}

void ReadWhole(hid_t group, const char* name, hid_t type, hid_t transfer, size_t count)
{
  const hid_t dataset = H5Dopen2(group, name, H5P_DEFAULT);
  const hid_t space = H5Dget_space(dataset);
  void* elements = calloc(count, sizeof(hvl_t));
  if (elements != nullptr && H5Dread(dataset, type, H5S_ALL, H5S_ALL, transfer, elements) >= 0 &&
      H5Tget_class(type) == H5T_VLEN)
  {
    H5Dvlen_reclaim(type, space, H5P_DEFAULT, elements);
  }
  free(elements);
  H5Sclose(space);
  H5Dclose(dataset);
}

struct Contents
{
  hssize_t count;  // 0 where no storage reads elements
  H5T_class_t type_class;
};

Contents ContentsOf(hid_t group, const char* name)
{
  const hid_t dataset = H5Dopen2(group, name, H5P_DEFAULT);
  if (dataset < 0)
  {
    return {kReadAsEveryType, H5T_NO_CLASS};  // to be tried again, which HDF5 answers otherwise at times
  }
  const hid_t space = H5Dget_space(dataset);
  const hssize_t count = H5Sget_simple_extent_ndims(space) == 1 ? H5Sget_select_npoints(space) : 0;
  H5Sclose(space);
  const hid_t type = H5Dget_type(dataset);
  const H5T_class_t type_class = H5Tget_class(type);
  H5Tclose(type);
  H5Dclose(dataset);
  return {count, type_class};
}

void ReadWholeDataset(hid_t group, const char* name, Manner manner)
{
  const Contents contents = ContentsOf(group, name);
  for (const hid_t* type = manner.begin; type != manner.end; ++type)
  {
    if (contents.count > 0 && contents.count <= kPatience && H5Tget_class(*type) == contents.type_class)
    {
      ReadWhole(group, name, *type, manner.transfer, static_cast<size_t>(contents.count));
    }
  }
}

// The first elements as every type, or, in the second pass, all elements as the types of the dataset's class.
void ReadDataset(hid_t group, const char* name, Manner manner, bool all)
{
  if (manner.whole)
  {
    ReadWholeDataset(group, name, manner);
    return;
  }
  const Contents contents = ContentsOf(group, name);
  const bool is_patient = !manner.impatient || contents.count <= kPatience;
  const hssize_t wanted = manner.only_open ? 0 : !all ? kReadAsEveryType : is_patient ? contents.count : 0;
  for (hssize_t i = 0; i < contents.count && i < wanted; ++i)
  {
    for (const hid_t* type = manner.begin; type != manner.end; ++type)
    {
      if (!all || H5Tget_class(*type) == contents.type_class)
      {
        const auto read = [&] { ReadElement(group, name, *type, manner.transfer, static_cast<hsize_t>(i)); };
        if (all)
        {
          read();
        }
        else
        {
          Apart(manner, read);
        }
      }
    }
  }
}

// Calls a reader for each name in a group.
template <class Reader>
void ForEachName(hid_t group, Manner manner, Reader reader)
{
  const std::vector<std::string> names = NamesOf(group);
  for (size_t i = 0; i < names.size(); ++i)
  {
    Apart(manner, [&] {
      AskForName(group, i);
      reader(names[i].c_str());
    });
  }
}

void ReadCommand(hid_t group, Manner manner, bool all)
{
  ForEachName(group, manner, [&](const char* name) { ReadDataset(group, name, manner, all); });
}

// Calls a reader for each member group.
template <class Reader>
void ForEachGroup(hid_t group, Manner manner, Reader reader)
{
  H5G_info_t info;
  H5Gget_info(group, &info);
  ForEachName(group, manner, [&](const char* name) {
    const hid_t member = H5Gopen2(group, name, H5P_DEFAULT);
    if (member >= 0)
    {
      reader(member);
      H5Gclose(member);
    }
  });
}

hid_t OpenFile()
{
  const hid_t access = H5Pcreate(H5P_FILE_ACCESS);
  H5Pset_cache(access, 100, 5000, 0x40000000, 0.0);
  const hid_t file = H5Fopen("parfile_storage.hdf5", H5F_ACC_RDONLY, access);
  H5Pclose(access);
  return file;
}

// Fills memory that nothing was written to, so that a use of it does not go by unseen.
void FillFreshMemory()
{
  mallopt(M_PERTURB, 165);
  H5set_free_list_limits(0, 0, 0, 0, 0, 0);
}

void ReadFile(Manner manner)
{
  const hid_t file = OpenFile();
  const hid_t top = H5Gopen2(file, "/PARFILE", H5P_DEFAULT);
  if (top >= 0)
  {
    for (const bool all : {false, true})
    {
      ForEachGroup(top, manner, [&](hid_t kind) {
        ForEachGroup(kind, manner, [&](hid_t command) { ReadCommand(command, manner, all); });
      });
    }
    H5Gclose(top);
  }
  H5Fclose(file);
}

}  // namespace

int main(int argc, char** argv)
{
  Manner manner{nullptr, nullptr, H5Pcreate(H5P_DATASET_XFER), false, false, false, Until::TheFirstFault};
  H5Pset_buffer(manner.transfer, kConversionBufferBytes, nullptr, nullptr);
  int next = 1;
  for (; next < argc && strncmp(argv[next], "--", 2) == 0; ++next)
  {
    if (strcmp(argv[next], "--fill") == 0)
    {
      FillFreshMemory();
    }
    manner.impatient = manner.impatient || strcmp(argv[next], "--impatient") == 0;
    manner.whole = manner.whole || strcmp(argv[next], "--whole") == 0;
    manner.only_open = manner.only_open || strcmp(argv[next], "--open") == 0;
    if (strcmp(argv[next], "--until-crash") == 0)
    {
      manner.until = Until::Crash;
    }
    else if (strcmp(argv[next], "--until-hang") == 0)
    {
      manner.until = Until::Hang;
    }
  }
  H5Eset_auto2(H5E_DEFAULT, nullptr, nullptr);
  // A program that shows files takes integers of every size.
  const hid_t types[] = {manner.whole ? H5T_NATIVE_LLONG : H5T_NATIVE_INT,
                         H5T_NATIVE_DOUBLE,
                         H5Tvlen_create(H5T_C_S1),
                         H5Tvlen_create(H5T_NATIVE_INT),
                         H5Tvlen_create(H5T_NATIVE_DOUBLE),
                         H5T_STD_REF_OBJ};
  manner.begin = types;
  manner.end = types + sizeof types / sizeof types[0];
  const int first = next;
  for (; next < argc; ++next)
  {
    if (next != first)  // which has the time that this program was started with
    {
      GiveTime(kHangSeconds);
    }
    if (chdir(argv[next]) == 0)
    {
      ReadFile(manner);
    }
  }
  return 0;
}

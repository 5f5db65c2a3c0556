#include "model_file/records/head/nrm_params_record.h"

#include <cstring>

#include "model_file/records/frame/record_line.h"
#include "road_model/model/model_parts.h"
#include "road_model/params/nrm_params.h"

namespace {

constexpr char kCode[] = "CODE";
constexpr char kBranchChain[] = "BRCHAIN";
constexpr char kGroupEnd[] = ":GROUPEND";

// Whether the next argument of the line can start a number. The model
// file's number readers would read a letter as a digit; a value that is no
// number reads as 0 here.
bool boNumberFollows(RecordLine* line) {
  if (boRecordAtEnd(line)) return false;
  const char first = *line->Cursor;
  if ((first >= '0' && first <= '9') || first == '-' || first == '+' || first == '.') return true;
  sRecordToken(line);
  return false;
}

double dRowNumber(RecordLine* line) { return boNumberFollows(line) ? dRecordNumber(line) : 0.0; }

int iRowInteger(RecordLine* line) { return boNumberFollows(line) ? iRecordInteger(line) : 0; }

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  const RmNrmParams* params = RmModelGetNrmParams(model);
  return params && params->codes.first;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  const RmNrmParams* params = RmModelGetNrmParams(model);
  for (const NrmParam* param = ListFirst<NrmParam>(&params->codes); param; param = param->next) {
    boRecordWrite(file, section, "%s %d", kCode, param->CODE);
    for (const NrmValue* value = ListFirst<NrmValue>(&param->values); value; value = value->next) {
      boRecordWrite(file, section, " %.4lf %d %.4lf", value->chain, value->side, value->value);
    }
  }
  for (const NrmBranch* branch = ListFirst<NrmBranch>(&params->branches); branch;
       branch = branch->next) {
    boRecordWrite(file, section, "%s %.4lf %d", kBranchChain, branch->BRCHAIN, branch->branchClass);
    for (const NrmBranchRow* row = ListFirst<NrmBranchRow>(&branch->rows); row; row = row->next) {
      boRecordWrite(file, section, " %.4lf %.4lf %d", row->x, row->y, row->code);
    }
  }
}

// Rows belong to the parameter or the branch opened last; any other line
// ends them, so that rows behind an unknown keyword are dropped.
void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmNrmParams* params = pNrmParamsCreate();
  if (!params) return;
  NrmParam* param = nullptr;
  NrmBranch* branch = nullptr;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (boRecordIsRow(line.Text)) {
      vRecordLineStart(&line, line.Text);
      if (param) {
        const double chain = dRowNumber(&line);
        const int side = iRowInteger(&line);
        vNrmParamAppendValue(param, chain, dRowNumber(&line), side);
      } else if (branch) {
        const double x = dRowNumber(&line);
        const double y = dRowNumber(&line);
        vNrmBranchAddRow(branch, x, y, iRowInteger(&line));
      }
      continue;
    }
    param = nullptr;
    branch = nullptr;
    if (std::strcmp(line.Token, kCode) == 0) {
      param = pNrmParamsGetOrAdd(params, iRowInteger(&line));
    } else if (std::strcmp(line.Token, kBranchChain) == 0) {
      const double chain = dRowNumber(&line);
      branch = pNrmParamsAddBranch(params, chain, iRowInteger(&line));
    } else if (std::strcmp(line.Token, kGroupEnd) == 0) {
      break;
    }
  }
  vRmModelSetNrmParams(model, params);
}

}  // namespace

const RmRecordFamily kRmNrmParamsFamily = {
    .Keyword = "NRMPARAMS",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
